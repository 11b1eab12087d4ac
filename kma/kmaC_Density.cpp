#include "kma/kmaC_Density.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Density::kmaC_Density(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Density* kmaC_Density::Copy() const { return mem_New<kmaC_Density>(*this); }
void kmaC_Density::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Density::operator==(const kmaC_Density& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Density::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Density&>(o); }
void kmaC_Density::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Density>(r); }
void kmaC_Density::CowDtor(void* p) { fw_CowDtor<kmaC_Density>(p); }

void kmaC_Density::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
