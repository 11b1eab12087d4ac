#pragma once
// Keeps a design symmetric about a plane of a coordinate system.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_PlanarSymmetry : public fw_PersistentClass<kopC_PlanarSymmetry, kopC_GeometricRestriction> {
 public:
  enum class AxisEnm : std::int32_t { AXIS_1 = 0, AXIS_2 = 1, AXIS_3 = 2 };
  static constexpr omu_EnumLiteral kAxisLiterals[] = {{"AXIS_1", 0}, {"AXIS_2", 1}, {"AXIS_3", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(AxisEnm) { return kAxisLiterals; }
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_PlanarSymmetry";
  static constexpr const char* kScriptName = "PlanarSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 85); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_PlanarSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"axis", 1, "axis", &C::axis},
    };
  }

  kopC_PlanarSymmetry() = default;
  explicit kopC_PlanarSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  AxisEnm GetAxis() const { return axis; }
  void SetAxis(AxisEnm v) { axis = v; }

 private:
  rgnC_Region region;
  AxisEnm axis = AxisEnm::AXIS_1;
};

extern template class fw_PersistentClass<kopC_PlanarSymmetry, kopC_GeometricRestriction>;
