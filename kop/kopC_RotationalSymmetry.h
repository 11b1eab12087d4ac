#pragma once
// Keeps a design repeating itself by an angle about an axis.
#include <cstdint>
#include <tuple>

#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_RotationalSymmetry : public kopC_GeometricRestriction {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_RotationalSymmetry* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_RotationalSymmetry& o) const;
  bool operator!=(const kopC_RotationalSymmetry& o) const { return !(*this == o); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetAngle() const { return angle; }
  void SetAngle(double v) { angle = v; }

 protected:
  bool SameAs(const kopC_GeometricRestriction& o) const override;

 private:
  rgnC_Region region;
  double angle = 90.0;
};
