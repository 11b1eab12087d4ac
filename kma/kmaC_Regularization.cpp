#include "kma/kmaC_Regularization.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Regularization::kmaC_Regularization(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Regularization* kmaC_Regularization::Copy() const { return mem_New<kmaC_Regularization>(*this); }
void kmaC_Regularization::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Regularization::operator==(const kmaC_Regularization& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Regularization::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Regularization&>(o); }
void kmaC_Regularization::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Regularization>(r); }
void kmaC_Regularization::CowDtor(void* p) { fw_CowDtor<kmaC_Regularization>(p); }

void kmaC_Regularization::AssertValid() const {
}
