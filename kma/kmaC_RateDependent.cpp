#include "kma/kmaC_RateDependent.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_RateDependent::kmaC_RateDependent(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_RateDependent* kmaC_RateDependent::Copy() const { return mem_New<kmaC_RateDependent>(*this); }
void kmaC_RateDependent::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_RateDependent::operator==(const kmaC_RateDependent& o) const { return fw_EqualFields(*this, o); }
bool kmaC_RateDependent::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_RateDependent&>(o); }
void kmaC_RateDependent::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_RateDependent>(r); }
void kmaC_RateDependent::CowDtor(void* p) { fw_CowDtor<kmaC_RateDependent>(p); }

void kmaC_RateDependent::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
