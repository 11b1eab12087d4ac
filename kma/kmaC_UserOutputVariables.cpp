#include "kma/kmaC_UserOutputVariables.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_UserOutputVariables::kmaC_UserOutputVariables(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_UserOutputVariables::AssertValid() const {
  kmaC_Assert(n >= 0, kmaC_InvalidStateVariable);
}

template class fw_PersistentClass<kmaC_UserOutputVariables, kmaC_MaterialOption>;
