#pragma once
// Bounds the thicknesses a sizing task may give its shell elements.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_ThicknessControl : public fw_PersistentClass<kopC_ThicknessControl, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_ThicknessControl";
  static constexpr const char* kScriptName = "ThicknessControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 102); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_ThicknessControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"minThickness", 1, "minThickness", &C::minThickness},
        fw_Field{"maxThickness", 2, "maxThickness", &C::maxThickness},
    };
  }

  kopC_ThicknessControl() = default;
  explicit kopC_ThicknessControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetMinThickness() const { return minThickness; }
  void SetMinThickness(double v) { minThickness = v; }
  double GetMaxThickness() const { return maxThickness; }
  void SetMaxThickness(double v) { maxThickness = v; }

 private:
  rgnC_Region region;
  double minThickness = kopC_kUnset;
  double maxThickness = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_ThicknessControl, kopC_GeometricRestriction>;
