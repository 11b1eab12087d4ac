#include "kma/kmaC_Potential.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Potential::kmaC_Potential(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Potential* kmaC_Potential::Copy() const { return mem_New<kmaC_Potential>(*this); }
void kmaC_Potential::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Potential::operator==(const kmaC_Potential& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Potential::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Potential&>(o); }
void kmaC_Potential::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Potential>(r); }
void kmaC_Potential::CowDtor(void* p) { fw_CowDtor<kmaC_Potential>(p); }

void kmaC_Potential::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
