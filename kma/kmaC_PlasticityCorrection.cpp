#include "kma/kmaC_PlasticityCorrection.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_PlasticityCorrection::kmaC_PlasticityCorrection(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_PlasticityCorrection::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_PlasticityCorrection, kmaC_MaterialOption>;
