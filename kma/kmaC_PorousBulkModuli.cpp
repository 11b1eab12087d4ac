#include "kma/kmaC_PorousBulkModuli.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_PorousBulkModuli::kmaC_PorousBulkModuli(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_PorousBulkModuli::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_PorousBulkModuli, kmaC_MaterialOption>;
