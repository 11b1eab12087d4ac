#include "kma/kmaC_PoreFluidExpansion.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_PoreFluidExpansion::kmaC_PoreFluidExpansion(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_PoreFluidExpansion* kmaC_PoreFluidExpansion::Copy() const { return mem_New<kmaC_PoreFluidExpansion>(*this); }
void kmaC_PoreFluidExpansion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_PoreFluidExpansion::operator==(const kmaC_PoreFluidExpansion& o) const { return fw_EqualFields(*this, o); }
bool kmaC_PoreFluidExpansion::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_PoreFluidExpansion&>(o); }
void kmaC_PoreFluidExpansion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_PoreFluidExpansion>(r); }
void kmaC_PoreFluidExpansion::CowDtor(void* p) { fw_CowDtor<kmaC_PoreFluidExpansion>(p); }

void kmaC_PoreFluidExpansion::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
