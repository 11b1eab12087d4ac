#pragma once
// Nodes a bead task leaves where they are.
#include <cstdint>
#include <tuple>

#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_BeadFrozenArea : public kopC_GeometricRestriction {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_BeadFrozenArea* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_BeadFrozenArea& o) const;
  bool operator!=(const kopC_BeadFrozenArea& o) const { return !(*this == o); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 protected:
  bool SameAs(const kopC_GeometricRestriction& o) const override;

 private:
  rgnC_Region region;
};
