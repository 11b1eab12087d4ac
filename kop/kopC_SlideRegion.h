#pragma once
// Nodes of a shape design that may move only along its surface.
#include <cstdint>
#include <tuple>

#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_SlideRegion : public kopC_GeometricRestriction {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_SlideRegion";
  static constexpr const char* kScriptName = "SlideRegion";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 84); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SlideRegion;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
    };
  }

  kopC_SlideRegion() = default;
  explicit kopC_SlideRegion(const cls_ReadVisitor& reader);
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_SlideRegion* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_SlideRegion& o) const;
  bool operator!=(const kopC_SlideRegion& o) const { return !(*this == o); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 protected:
  bool SameAs(const kopC_GeometricRestriction& o) const override;

 private:
  rgnC_Region region;
};
