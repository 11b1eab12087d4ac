#include "kma/kmaC_TransShearElastic.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_TransShearElastic::kmaC_TransShearElastic(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_TransShearElastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_TransShearElastic, kmaC_MaterialOption>;
