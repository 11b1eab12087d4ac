#pragma once
// Limits how far the nodes of a bead design grow or shrink.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_BeadGrowth : public fw_PersistentClass<kopC_BeadGrowth, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_BeadGrowth";
  static constexpr const char* kScriptName = "BeadGrowth";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 111); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_BeadGrowth;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"growth", 1, "growth", &C::growth},
        fw_Field{"shrink", 2, "shrink", &C::shrink},
    };
  }

  kopC_BeadGrowth() = default;
  explicit kopC_BeadGrowth(const cls_ReadVisitor& reader);
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

extern template class fw_PersistentClass<kopC_BeadGrowth, kopC_GeometricRestriction>;
