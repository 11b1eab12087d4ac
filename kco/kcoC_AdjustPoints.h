#pragma once
// Points moved onto a surface before the analysis.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "platform/model/rgnC_Region.h"

class kcoC_AdjustPoints : public fw_PersistentClass<kcoC_AdjustPoints, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_AdjustPoints";
  static constexpr const char* kScriptName = "AdjustPoints";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 12); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_AdjustPoints;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"surface", 1, "surface", &C::surface},
        fw_Field{"controlPoints", 2, "controlPoints", &C::controlPoints},
    };
  }

  kcoC_AdjustPoints() = default;
  explicit kcoC_AdjustPoints(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const rgnC_Region& GetSurface() const { return surface; }
  void SetSurface(const rgnC_Region& v) { surface = v; }
  const rgnC_Region& GetControlPoints() const { return controlPoints; }
  void SetControlPoints(const rgnC_Region& v) { controlPoints = v; }

 private:
  rgnC_Region surface;
  rgnC_Region controlPoints;
};

extern template class fw_PersistentClass<kcoC_AdjustPoints, kcoC_Constraint>;
