#include "kco/kcoC_Equation.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kco/kcoC_assert.h"

kcoC_Equation::kcoC_Equation(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The terms are checked after the count, in order; the first bad one reports.
void kcoC_Equation::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  kcoC_Assert(terms.size() >= 2, kcoC_EquationTooFewTerms);
  for (const auto& t : terms)
    if (!t.IsNull()) t.Get().AssertValid();
}

template class fw_PersistentClass<kcoC_Equation, kcoC_Constraint>;
