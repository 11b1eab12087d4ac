#include "kma/kmaC_Regularization.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Regularization::kmaC_Regularization(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Regularization::AssertValid() const {
}

template class fw_PersistentClass<kmaC_Regularization, kmaC_MaterialOption>;
