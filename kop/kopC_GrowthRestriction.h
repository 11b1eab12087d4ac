#pragma once
// Limits how far the nodes of a shape design grow or shrink.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_GrowthRestriction : public fw_PersistentClass<kopC_GrowthRestriction, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_GrowthRestriction";
  static constexpr const char* kScriptName = "GrowthRestriction";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 98); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_GrowthRestriction;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"growth", 1, "growth", &C::growth},
        fw_Field{"shrink", 2, "shrink", &C::shrink},
    };
  }

  kopC_GrowthRestriction() = default;
  explicit kopC_GrowthRestriction(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  double GetGrowth() const { return growth; }
  void SetGrowth(double v) { growth = v; }
  double GetShrink() const { return shrink; }
  void SetShrink(double v) { shrink = v; }

 private:
  rgnC_Region region;
  double growth = kopC_kUnset;
  double shrink = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_GrowthRestriction, kopC_GeometricRestriction>;
