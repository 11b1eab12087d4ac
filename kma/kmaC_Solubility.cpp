#include "kma/kmaC_Solubility.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Solubility::kmaC_Solubility(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Solubility* kmaC_Solubility::Copy() const { return mem_New<kmaC_Solubility>(*this); }
void kmaC_Solubility::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Solubility::operator==(const kmaC_Solubility& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Solubility::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Solubility&>(o); }
void kmaC_Solubility::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Solubility>(r); }
void kmaC_Solubility::CowDtor(void* p) { fw_CowDtor<kmaC_Solubility>(p); }

void kmaC_Solubility::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
