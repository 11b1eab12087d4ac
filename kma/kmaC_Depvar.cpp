#include "kma/kmaC_Depvar.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Depvar::kmaC_Depvar(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Depvar* kmaC_Depvar::Copy() const { return mem_New<kmaC_Depvar>(*this); }
void kmaC_Depvar::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Depvar::operator==(const kmaC_Depvar& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Depvar::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Depvar&>(o); }
void kmaC_Depvar::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Depvar>(r); }
void kmaC_Depvar::CowDtor(void* p) { fw_CowDtor<kmaC_Depvar>(p); }

void kmaC_Depvar::AssertValid() const {
  kmaC_Assert(deleteVar >= 0, kmaC_DeleteNumberBelowMinimum);
  kmaC_Assert(deleteVar <= n, kmaC_InvalidStateVariable);
}
