#include "kma/kmaC_UserMaterial.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_UserMaterial::kmaC_UserMaterial(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_UserMaterial::AssertValid() const {
  mechanicalConstants.AssertValid();
  thermalConstants.AssertValid();
}

template class fw_PersistentClass<kmaC_UserMaterial, kmaC_MaterialOption>;
