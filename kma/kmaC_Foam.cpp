#include "kma/kmaC_Foam.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Foam::kmaC_Foam(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Foam* kmaC_Foam::Copy() const { return mem_New<kmaC_Foam>(*this); }
void kmaC_Foam::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Foam::operator==(const kmaC_Foam& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Foam::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Foam&>(o); }
void kmaC_Foam::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Foam>(r); }
void kmaC_Foam::CowDtor(void* p) { fw_CowDtor<kmaC_Foam>(p); }

void kmaC_Foam::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
