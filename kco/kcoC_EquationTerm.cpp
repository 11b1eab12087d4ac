#include "kco/kcoC_EquationTerm.h"

#include "framework/fw_FieldTable.h"
#include "kco/kcoC_assert.h"

kcoC_EquationTerm::kcoC_EquationTerm(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kcoC_EquationTerm::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_EquationTerm* kcoC_EquationTerm::Copy() const { return new kcoC_EquationTerm(*this); }
bool kcoC_EquationTerm::operator==(const kcoC_EquationTerm& o) const { return fw_EqualFields(*this, o); }
void kcoC_EquationTerm::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_EquationTerm>(r); }
void kcoC_EquationTerm::CowDtor(void* p) { fw_CowDtor<kcoC_EquationTerm>(p); }

void kcoC_EquationTerm::AssertValid() const { kcoC_Assert(dof > 0, kcoC_DofNotPositive); }
