#include "kco/kcoC_EquationTerm.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kco/kcoC_assert.h"

kcoC_EquationTerm::kcoC_EquationTerm(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

void kcoC_EquationTerm::AssertValid() const { kcoC_Assert(dof > 0, kcoC_DofNotPositive); }

template class fw_PersistentClass<kcoC_EquationTerm, mem_Allocated>;
