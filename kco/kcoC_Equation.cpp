#include "kco/kcoC_Equation.h"

#include "framework/fw_FieldTable.h"
#include "kco/kcoC_assert.h"

kcoC_Equation::kcoC_Equation(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_Equation::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_Equation* kcoC_Equation::Copy() const { return new kcoC_Equation(*this); }
bool kcoC_Equation::operator==(const kcoC_Equation& o) const { return fw_EqualFields(*this, o); }
bool kcoC_Equation::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_Equation&>(o); }
void kcoC_Equation::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_Equation>(r); }
void kcoC_Equation::CowDtor(void* p) { fw_CowDtor<kcoC_Equation>(p); }

// The terms are checked after the count, in order; the first bad one reports.
void kcoC_Equation::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  kcoC_Assert(terms.size() >= 2, kcoC_EquationTooFewTerms);
  for (const auto& t : terms)
    if (!t.IsNull()) t.Get().AssertValid();
}
