#pragma once
// The constraint of the optimization module: a design response, a comparison and a value.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_Constraint.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"

class kopC_OrimConstraint : public fw_PersistentClass<kopC_OrimConstraint, kopC_Constraint> {
 public:
  using BaseClass = kopC_Constraint;
  using RootClass = kopC_Constraint;
  static constexpr const char* kClassName = "kopC_OrimConstraint";
  static constexpr const char* kScriptName = "OptimizationConstraint";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 42); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_OrimConstraint;
    return std::tuple{
        fw_Field{"designResponse", 0, "designResponse", &C::designResponse},
        fw_Field{"restrictionMethod", 1, "restrictionMethod", &C::restrictionMethod},
        fw_Field{"restrictionValue", 2, "restrictionValue", &C::restrictionValue},
    };
  }

  kopC_OrimConstraint() = default;
  explicit kopC_OrimConstraint(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  // True for the methods whose value is a fraction of the initial value.
  bool IsRelative() const { return static_cast<int>(restrictionMethod) % 2 == 1; }

  const cow_String& GetDesignResponse() const { return designResponse; }
  void SetDesignResponse(const cow_String& v) { designResponse = v; }
  kopC_RestrictionMethodEnm GetRestrictionMethod() const { return restrictionMethod; }
  void SetRestrictionMethod(kopC_RestrictionMethodEnm v) { restrictionMethod = v; }
  double GetRestrictionValue() const { return restrictionValue; }
  void SetRestrictionValue(double v) { restrictionValue = v; }

 private:
  cow_String designResponse;
  kopC_RestrictionMethodEnm restrictionMethod = kopC_RestrictionMethodEnm::ABSOLUTE_LESS_THAN_EQUAL;
  double restrictionValue = 0.0;
};

extern template class fw_PersistentClass<kopC_OrimConstraint, kopC_Constraint>;
