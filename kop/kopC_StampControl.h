#pragma once
// Keeps a topology design formable by stamping along a pull direction.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_GeometricRestriction.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kopC_StampControl : public fw_PersistentClass<kopC_StampControl, kopC_GeometricRestriction> {
 public:
  using BaseClass = kopC_GeometricRestriction;
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_StampControl";
  static constexpr const char* kScriptName = "StampControl";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 89); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_StampControl;
    return std::tuple{
        fw_Field{"region", 0, "region", &C::region},
        fw_Field{"csys", 1, "csys", &C::csys},
        fw_Field{"draftAngle", 2, "draftAngle", &C::draftAngle},
    };
  }

  kopC_StampControl() = default;
  explicit kopC_StampControl(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  std::int32_t GetCsys() const { return csys; }
  void SetCsys(std::int32_t v) { csys = v; }
  double GetDraftAngle() const { return draftAngle; }
  void SetDraftAngle(double v) { draftAngle = v; }

 private:
  rgnC_Region region;
  std::int32_t csys = 0;
  double draftAngle = 0.0;
};

extern template class fw_PersistentClass<kopC_StampControl, kopC_GeometricRestriction>;
