#include "kma/kmaC_HeatGeneration.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_HeatGeneration::kmaC_HeatGeneration(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_HeatGeneration::AssertValid() const {
}

template class fw_PersistentClass<kmaC_HeatGeneration, kmaC_MaterialOption>;
