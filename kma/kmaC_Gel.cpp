#include "kma/kmaC_Gel.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Gel::kmaC_Gel(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Gel::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_Gel, kmaC_MaterialOption>;
