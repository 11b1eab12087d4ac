#pragma once
// Keeps a design repeating itself by an angle about an axis.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_RotationalSymmetry : public fw_PersistentClass<kopC_RotationalSymmetry, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_RotationalSymmetry";
  static constexpr const char* kScriptName = "RotationalSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 87); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_RotationalSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"angle", 1, "angle", &C::angle},
    };
  }

  kopC_RotationalSymmetry() = default;
  explicit kopC_RotationalSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetAngle() const { return angle; }
  void SetAngle(double v) { angle = v; }

 private:
  rgnC_Region region;
  double angle = 90.0;
};

extern template class fw_PersistentClass<kopC_RotationalSymmetry, kopC_GeometricRestriction>;
