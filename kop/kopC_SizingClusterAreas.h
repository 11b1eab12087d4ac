#pragma once
// Shell elements of a sizing design that keep one common thickness.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_SizingClusterAreas : public fw_PersistentClass<kopC_SizingClusterAreas, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_SizingClusterAreas";
  static constexpr const char* kScriptName = "SizingClusterAreas";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 116); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SizingClusterAreas;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
    };
  }

  kopC_SizingClusterAreas() = default;
  explicit kopC_SizingClusterAreas(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 private:
  rgnC_Region region;
};

extern template class fw_PersistentClass<kopC_SizingClusterAreas, kopC_GeometricRestriction>;
