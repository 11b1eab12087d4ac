#include "kma/kmaC_UserDefinedField.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_UserDefinedField::kmaC_UserDefinedField(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_UserDefinedField::AssertValid() const {
}

template class fw_PersistentClass<kmaC_UserDefinedField, kmaC_MaterialOption>;
