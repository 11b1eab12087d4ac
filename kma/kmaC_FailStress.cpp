#include "kma/kmaC_FailStress.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_FailStress::kmaC_FailStress(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_FailStress* kmaC_FailStress::Copy() const { return mem_New<kmaC_FailStress>(*this); }
void kmaC_FailStress::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_FailStress::operator==(const kmaC_FailStress& o) const { return fw_EqualFields(*this, o); }
bool kmaC_FailStress::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_FailStress&>(o); }
void kmaC_FailStress::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_FailStress>(r); }
void kmaC_FailStress::CowDtor(void* p) { fw_CowDtor<kmaC_FailStress>(p); }

void kmaC_FailStress::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
