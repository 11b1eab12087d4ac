#include "kma/kmaC_MoistureSwelling.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_MoistureSwelling::kmaC_MoistureSwelling(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_MoistureSwelling::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_MoistureSwelling, kmaC_MaterialOption>;
