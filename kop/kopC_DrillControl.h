#pragma once
// Keeps a topology design drillable along a pull direction.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_DrillControl : public fw_PersistentClass<kopC_DrillControl, kopC_GeometricRestriction> {
 public:
  enum class TechniqueEnm : std::int32_t { AUTO = 0, POINT = 1, NONE = 2 };
  static constexpr omu_EnumLiteral kTechniqueLiterals[] = {{"AUTO", 0}, {"POINT", 1}, {"NONE", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TechniqueEnm) { return kTechniqueLiterals; }
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_DrillControl";
  static constexpr const char* kScriptName = "DrillControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 91); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_DrillControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"technique", 2, "technique", &C::technique},
        fw_Field{"pointRegion", 3, "pointRegion", &C::pointRegion},
    };
  }

  kopC_DrillControl() = default;
  explicit kopC_DrillControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  TechniqueEnm GetTechnique() const { return technique; }
  void SetTechnique(TechniqueEnm v) { technique = v; }
  const rgnC_Region& GetPointRegion() const { return pointRegion; }
  void SetPointRegion(const rgnC_Region& v) { pointRegion = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  TechniqueEnm technique = TechniqueEnm::AUTO;
  rgnC_Region pointRegion;
};

extern template class fw_PersistentClass<kopC_DrillControl, kopC_GeometricRestriction>;
