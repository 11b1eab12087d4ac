#pragma once
// Nodes a bead task leaves where they are.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_BeadFrozenArea : public fw_PersistentClass<kopC_BeadFrozenArea, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_BeadFrozenArea";
  static constexpr const char* kScriptName = "BeadFrozenArea";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 110); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_BeadFrozenArea;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
    };
  }

  kopC_BeadFrozenArea() = default;
  explicit kopC_BeadFrozenArea(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 private:
  rgnC_Region region;
};

extern template class fw_PersistentClass<kopC_BeadFrozenArea, kopC_GeometricRestriction>;
