#pragma once
// Keeps a shape design free of undercuts along a pull direction.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_ShapeDemoldControl : public fw_PersistentClass<kopC_ShapeDemoldControl, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_ShapeDemoldControl";
  static constexpr const char* kScriptName = "ShapeDemoldControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 92); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_ShapeDemoldControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"drawAngle", 2, "drawAngle", &C::drawAngle},
        fw_Field{"undercutTolerance", 3, "undercutTolerance", &C::undercutTolerance},
        fw_Field{"collisionCheckTolerance", 4, "collisionCheckTolerance", &C::collisionCheckTolerance},
    };
  }

  kopC_ShapeDemoldControl() = default;
  explicit kopC_ShapeDemoldControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  double GetDrawAngle() const { return drawAngle; }
  void SetDrawAngle(double v) { drawAngle = v; }
  double GetUndercutTolerance() const { return undercutTolerance; }
  void SetUndercutTolerance(double v) { undercutTolerance = v; }
  double GetCollisionCheckTolerance() const { return collisionCheckTolerance; }
  void SetCollisionCheckTolerance(double v) { collisionCheckTolerance = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  double drawAngle = 0.0;
  double undercutTolerance = 0.0;
  double collisionCheckTolerance = 0.01;
};

extern template class fw_PersistentClass<kopC_ShapeDemoldControl, kopC_GeometricRestriction>;
