#pragma once
// Keeps a topology design free of undercuts along a pull direction.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_DemoldControl : public fw_PersistentClass<kopC_DemoldControl, kopC_GeometricRestriction> {
 public:
  enum class TechniqueEnm : std::int32_t { AUTO = 0, POINT = 1, STAMP = 2 };
  static constexpr omu_EnumLiteral kTechniqueLiterals[] = {{"AUTO", 0}, {"POINT", 1}, {"STAMP", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TechniqueEnm) { return kTechniqueLiterals; }
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_DemoldControl";
  static constexpr const char* kScriptName = "TopologyDemoldControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 82); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_DemoldControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"technique", 1, "technique", &C::technique},
        fw_Field{"draftAngle", 2, "draftAngle", &C::draftAngle},
    };
  }

  kopC_DemoldControl() = default;
  explicit kopC_DemoldControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  TechniqueEnm GetTechnique() const { return technique; }
  void SetTechnique(TechniqueEnm v) { technique = v; }
  double GetDraftAngle() const { return draftAngle; }
  void SetDraftAngle(double v) { draftAngle = v; }

 private:
  rgnC_Region region;
  TechniqueEnm technique = TechniqueEnm::AUTO;
  double draftAngle = 0.0;
};

extern template class fw_PersistentClass<kopC_DemoldControl, kopC_GeometricRestriction>;
