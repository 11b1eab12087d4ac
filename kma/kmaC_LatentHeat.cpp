#include "kma/kmaC_LatentHeat.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_LatentHeat::kmaC_LatentHeat(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_LatentHeat::AssertValid() const {
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_LatentHeat, kmaC_MaterialOption>;
