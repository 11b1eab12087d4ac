#include "kma/kmaC_CycledPlastic.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_CycledPlastic::kmaC_CycledPlastic(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CycledPlastic::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_CycledPlastic, kmaC_MaterialOption>;
