#include "kma/kmaC_UserDefinedField.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_UserDefinedField::kmaC_UserDefinedField(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_UserDefinedField* kmaC_UserDefinedField::Copy() const { return mem_New<kmaC_UserDefinedField>(*this); }
void kmaC_UserDefinedField::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_UserDefinedField::operator==(const kmaC_UserDefinedField& o) const { return fw_EqualFields(*this, o); }
bool kmaC_UserDefinedField::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_UserDefinedField&>(o); }
void kmaC_UserDefinedField::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_UserDefinedField>(r); }
void kmaC_UserDefinedField::CowDtor(void* p) { fw_CowDtor<kmaC_UserDefinedField>(p); }

void kmaC_UserDefinedField::AssertValid() const {
}
