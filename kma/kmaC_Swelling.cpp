#include "kma/kmaC_Swelling.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Swelling::kmaC_Swelling(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Swelling* kmaC_Swelling::Copy() const { return mem_New<kmaC_Swelling>(*this); }
void kmaC_Swelling::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Swelling::operator==(const kmaC_Swelling& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Swelling::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Swelling&>(o); }
void kmaC_Swelling::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Swelling>(r); }
void kmaC_Swelling::CowDtor(void* p) { fw_CowDtor<kmaC_Swelling>(p); }

void kmaC_Swelling::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
