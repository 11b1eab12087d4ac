#pragma once
// Shapes the ribs a bead task builds.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_RibControl : public fw_PersistentClass<kopC_RibControl, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_RibControl";
  static constexpr const char* kScriptName = "BeadRibControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 101); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_RibControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"ribThickness", 1, "ribThickness", &C::ribThickness},
        fw_Field{"ribDistance", 2, "ribDistance", &C::ribDistance},
    };
  }

  kopC_RibControl() = default;
  explicit kopC_RibControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetRibThickness() const { return ribThickness; }
  void SetRibThickness(double v) { ribThickness = v; }
  double GetRibDistance() const { return ribDistance; }
  void SetRibDistance(double v) { ribDistance = v; }

 private:
  rgnC_Region region;
  double ribThickness = 1.0;
  double ribDistance = 10.0;
};

extern template class fw_PersistentClass<kopC_RibControl, kopC_GeometricRestriction>;
