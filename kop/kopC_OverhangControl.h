#pragma once
// Limits the overhang a topology design may build, for additive manufacturing.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_OverhangControl : public fw_PersistentClass<kopC_OverhangControl, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_OverhangControl";
  static constexpr const char* kScriptName = "TopologyOverhangControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 100); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_OverhangControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"overhangAngle", 1, "overhangAngle", &C::overhangAngle},
        fw_Field{"radius", 2, "radius", &C::radius},
        fw_Field{"filterRadius", 3, "filterRadius", &C::filterRadius},
    };
  }

  kopC_OverhangControl() = default;
  explicit kopC_OverhangControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetOverhangAngle() const { return overhangAngle; }
  void SetOverhangAngle(double v) { overhangAngle = v; }
  double GetRadius() const { return radius; }
  void SetRadius(double v) { radius = v; }
  double GetFilterRadius() const { return filterRadius; }
  void SetFilterRadius(double v) { filterRadius = v; }

 private:
  rgnC_Region region;
  double overhangAngle = 45.0;
  double radius = kopC_kUnset;
  double filterRadius = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_OverhangControl, kopC_GeometricRestriction>;
