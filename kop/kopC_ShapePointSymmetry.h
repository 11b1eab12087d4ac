#pragma once
// Keeps a shape design symmetric about a point.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_ShapePointSymmetry : public fw_PersistentClass<kopC_ShapePointSymmetry, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_ShapePointSymmetry";
  static constexpr const char* kScriptName = "ShapePointSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 97); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_ShapePointSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
    };
  }

  kopC_ShapePointSymmetry() = default;
  explicit kopC_ShapePointSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
};

extern template class fw_PersistentClass<kopC_ShapePointSymmetry, kopC_GeometricRestriction>;
