#pragma once
// Keeps a bead design symmetric about a plane of a coordinate system.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_BeadPlanarSymmetry : public fw_PersistentClass<kopC_BeadPlanarSymmetry, kopC_GeometricRestriction> {
 public:
  enum class AxisEnm : std::int32_t { AXIS_1 = 0, AXIS_2 = 1, AXIS_3 = 2 };
  static constexpr omu_EnumLiteral kAxisLiterals[] = {{"AXIS_1", 0}, {"AXIS_2", 1}, {"AXIS_3", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(AxisEnm) { return kAxisLiterals; }
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_BeadPlanarSymmetry";
  static constexpr const char* kScriptName = "BeadPlanarSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 112); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_BeadPlanarSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"axis", 2, "axis", &C::axis},
    };
  }

  kopC_BeadPlanarSymmetry() = default;
  explicit kopC_BeadPlanarSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  AxisEnm GetAxis() const { return axis; }
  void SetAxis(AxisEnm v) { axis = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  AxisEnm axis = AxisEnm::AXIS_1;
};

extern template class fw_PersistentClass<kopC_BeadPlanarSymmetry, kopC_GeometricRestriction>;
