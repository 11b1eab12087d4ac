#pragma once
// Keeps a sizing design repeating itself by an angle about an axis.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_SizingRotationalSymmetry : public fw_PersistentClass<kopC_SizingRotationalSymmetry, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_SizingRotationalSymmetry";
  static constexpr const char* kScriptName = "SizingRotationalSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 107); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SizingRotationalSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"angle", 2, "angle", &C::angle},
    };
  }

  kopC_SizingRotationalSymmetry() = default;
  explicit kopC_SizingRotationalSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  double GetAngle() const { return angle; }
  void SetAngle(double v) { angle = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  double angle = 90.0;
};

extern template class fw_PersistentClass<kopC_SizingRotationalSymmetry, kopC_GeometricRestriction>;
