#pragma once
// A region the optimizer leaves as it is.
#include <cstdint>
#include <tuple>

#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_FrozenArea : public kopC_GeometricRestriction {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_FrozenArea";
  static constexpr const char* kScriptName = "FrozenArea";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 80); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_FrozenArea;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
    };
  }

  kopC_FrozenArea() = default;
  explicit kopC_FrozenArea(const cls_ReadVisitor& reader);
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_FrozenArea* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_FrozenArea& o) const;
  bool operator!=(const kopC_FrozenArea& o) const { return !(*this == o); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 protected:
  bool SameAs(const kopC_GeometricRestriction& o) const override;

 private:
  rgnC_Region region;
};
