#pragma once
// Keeps the nodes of a shape design from moving through a surface.
#include <cstdint>
#include <tuple>

#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_PenetrationCheck : public kopC_GeometricRestriction {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_PenetrationCheck* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_PenetrationCheck& o) const;
  bool operator!=(const kopC_PenetrationCheck& o) const { return !(*this == o); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  const rgnC_Region& GetPenetrationCheckRegion() const { return penetrationCheckRegion; }
  void SetPenetrationCheckRegion(const rgnC_Region& v) { penetrationCheckRegion = v; }

 protected:
  bool SameAs(const kopC_GeometricRestriction& o) const override;

 private:
  rgnC_Region region;
  rgnC_Region penetrationCheckRegion;
};
