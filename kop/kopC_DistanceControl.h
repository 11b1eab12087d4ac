#pragma once
// Keeps the surface of a shape design at a distance from a reference region.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_DistanceControl : public fw_PersistentClass<kopC_DistanceControl, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_DistanceControl";
  static constexpr const char* kScriptName = "DistanceControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 125); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_DistanceControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"referenceRegion", 1, "referenceRegion", &C::referenceRegion},
        fw_Field{"distance", 2, "distance", &C::distance},
    };
  }

  kopC_DistanceControl() = default;
  explicit kopC_DistanceControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  const rgnC_Region& GetReferenceRegion() const { return referenceRegion; }
  void SetReferenceRegion(const rgnC_Region& v) { referenceRegion = v; }
  double GetDistance() const { return distance; }
  void SetDistance(double v) { distance = v; }

 private:
  rgnC_Region region;
  rgnC_Region referenceRegion;
  double distance = 0.0;
};

extern template class fw_PersistentClass<kopC_DistanceControl, kopC_GeometricRestriction>;
