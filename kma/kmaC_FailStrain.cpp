#include "kma/kmaC_FailStrain.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_FailStrain::kmaC_FailStrain(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_FailStrain* kmaC_FailStrain::Copy() const { return mem_New<kmaC_FailStrain>(*this); }
void kmaC_FailStrain::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_FailStrain::operator==(const kmaC_FailStrain& o) const { return fw_EqualFields(*this, o); }
bool kmaC_FailStrain::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_FailStrain&>(o); }
void kmaC_FailStrain::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_FailStrain>(r); }
void kmaC_FailStrain::CowDtor(void* p) { fw_CowDtor<kmaC_FailStrain>(p); }

void kmaC_FailStrain::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
