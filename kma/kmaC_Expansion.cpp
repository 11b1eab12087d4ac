#include "kma/kmaC_Expansion.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Expansion::kmaC_Expansion(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Expansion* kmaC_Expansion::Copy() const { return mem_New<kmaC_Expansion>(*this); }
void kmaC_Expansion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Expansion::operator==(const kmaC_Expansion& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Expansion::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Expansion&>(o); }
void kmaC_Expansion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Expansion>(r); }
void kmaC_Expansion::CowDtor(void* p) { fw_CowDtor<kmaC_Expansion>(p); }

void kmaC_Expansion::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
