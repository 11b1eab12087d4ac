#include "kma/kmaC_Piezoelectric.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Piezoelectric::kmaC_Piezoelectric(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Piezoelectric::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_Piezoelectric, kmaC_MaterialOption>;
