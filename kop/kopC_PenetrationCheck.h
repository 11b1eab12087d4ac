#pragma once
// Keeps the nodes of a shape design from moving through a surface.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_PenetrationCheck : public fw_PersistentClass<kopC_PenetrationCheck, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_PenetrationCheck";
  static constexpr const char* kScriptName = "PenetrationCheck";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 99); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_PenetrationCheck;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"penetrationCheckRegion", 1, "penetrationCheckRegion", &C::penetrationCheckRegion},
    };
  }

  kopC_PenetrationCheck() = default;
  explicit kopC_PenetrationCheck(const cls_ReadVisitor& reader);
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

extern template class fw_PersistentClass<kopC_PenetrationCheck, kopC_GeometricRestriction>;
