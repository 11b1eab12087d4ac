#pragma once
// Shapes the ribs a bead task builds.
#include <cstdint>
#include <tuple>

#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_RibControl : public kopC_GeometricRestriction {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_RibControl* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_RibControl& o) const;
  bool operator!=(const kopC_RibControl& o) const { return !(*this == o); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetRibThickness() const { return ribThickness; }
  void SetRibThickness(double v) { ribThickness = v; }
  double GetRibDistance() const { return ribDistance; }
  void SetRibDistance(double v) { ribDistance = v; }

 protected:
  bool SameAs(const kopC_GeometricRestriction& o) const override;

 private:
  rgnC_Region region;
  double ribThickness = 1.0;
  double ribDistance = 10.0;
};
