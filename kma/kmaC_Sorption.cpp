#include "kma/kmaC_Sorption.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Sorption::kmaC_Sorption(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Sorption::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_Sorption, kmaC_MaterialOption>;
