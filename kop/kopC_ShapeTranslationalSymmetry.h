#pragma once
// Keeps a shape design repeating itself along a direction.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_ShapeTranslationalSymmetry : public fw_PersistentClass<kopC_ShapeTranslationalSymmetry, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_ShapeTranslationalSymmetry";
  static constexpr const char* kScriptName = "ShapeTranslationalSymmetry";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 123); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_ShapeTranslationalSymmetry;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"translation", 2, "translation", &C::translation},
    };
  }

  kopC_ShapeTranslationalSymmetry() = default;
  explicit kopC_ShapeTranslationalSymmetry(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  double GetTranslation() const { return translation; }
  void SetTranslation(double v) { translation = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  double translation = 1.0;
};

extern template class fw_PersistentClass<kopC_ShapeTranslationalSymmetry, kopC_GeometricRestriction>;
