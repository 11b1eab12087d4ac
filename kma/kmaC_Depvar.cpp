#include "kma/kmaC_Depvar.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Depvar::kmaC_Depvar(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Depvar::AssertValid() const {
  kmaC_Assert(deleteVar >= 0, kmaC_DeleteNumberBelowMinimum);
  kmaC_Assert(deleteVar <= n, kmaC_InvalidStateVariable);
}

template class fw_PersistentClass<kmaC_Depvar, kmaC_MaterialOption>;
