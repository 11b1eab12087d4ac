#pragma once
// A linear equation between degrees of freedom: the sum of its terms is zero.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_Enums.h"
#include "kco/kcoC_EquationTerm.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"

class kcoC_Equation : public fw_PersistentClass<kcoC_Equation, kcoC_Constraint> {
 public:
  using BaseClass = kcoC_Constraint;
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_Equation";
  static constexpr const char* kScriptName = "Equation";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 6); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kcoC_Equation;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"terms", 1, "terms", &C::terms},
    };
  }

  kcoC_Equation() = default;
  explicit kcoC_Equation(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<cow_COW<kcoC_EquationTerm, cow_Direct<kcoC_EquationTerm>>>& GetTerms() const { return terms; }
  void SetTerms(const cow_List<cow_COW<kcoC_EquationTerm, cow_Direct<kcoC_EquationTerm>>>& v) { terms = v; }

 private:
  cow_List<cow_COW<kcoC_EquationTerm, cow_Direct<kcoC_EquationTerm>>> terms;
};

extern template class fw_PersistentClass<kcoC_Equation, kcoC_Constraint>;
