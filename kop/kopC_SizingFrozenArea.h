#pragma once
// Shell elements a sizing task leaves at their thickness.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_SizingFrozenArea : public fw_PersistentClass<kopC_SizingFrozenArea, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_SizingFrozenArea";
  static constexpr const char* kScriptName = "SizingFrozenArea";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 103); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SizingFrozenArea;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
    };
  }

  kopC_SizingFrozenArea() = default;
  explicit kopC_SizingFrozenArea(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 private:
  rgnC_Region region;
};

extern template class fw_PersistentClass<kopC_SizingFrozenArea, kopC_GeometricRestriction>;
