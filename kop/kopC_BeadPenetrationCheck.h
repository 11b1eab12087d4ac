#pragma once
// Keeps the nodes of a bead design from moving through a surface.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_BeadPenetrationCheck : public fw_PersistentClass<kopC_BeadPenetrationCheck, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_BeadPenetrationCheck";
  static constexpr const char* kScriptName = "BeadPenetrationCheck";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 117); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_BeadPenetrationCheck;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"penetrationCheckRegion", 1, "penetrationCheckRegion", &C::penetrationCheckRegion},
    };
  }

  kopC_BeadPenetrationCheck() = default;
  explicit kopC_BeadPenetrationCheck(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  const rgnC_Region& GetPenetrationCheckRegion() const { return penetrationCheckRegion; }
  void SetPenetrationCheckRegion(const rgnC_Region& v) { penetrationCheckRegion = v; }

 private:
  rgnC_Region region;
  rgnC_Region penetrationCheckRegion;
};

extern template class fw_PersistentClass<kopC_BeadPenetrationCheck, kopC_GeometricRestriction>;
