#pragma once
// Keeps a shape design repeating itself in sectors about an axis.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_ShapeCyclicSymmetry : public fw_PersistentClass<kopC_ShapeCyclicSymmetry, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_ShapeCyclicSymmetry";
  static constexpr const char* kScriptName = "ShapeCyclicSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 96); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_ShapeCyclicSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"repetitiveSectors", 2, "repetitiveSectors", &C::repetitiveSectors},
        fw_Field{"angle", 3, "angle", &C::angle},
    };
  }

  kopC_ShapeCyclicSymmetry() = default;
  explicit kopC_ShapeCyclicSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  std::int32_t GetRepetitiveSectors() const { return repetitiveSectors; }
  void SetRepetitiveSectors(std::int32_t v) { repetitiveSectors = v; }
  double GetAngle() const { return angle; }
  void SetAngle(double v) { angle = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  std::int32_t repetitiveSectors = 2;
  double angle = 0.0;
};

extern template class fw_PersistentClass<kopC_ShapeCyclicSymmetry, kopC_GeometricRestriction>;
