#include "kma/kmaC_Hypoelastic.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Hypoelastic::kmaC_Hypoelastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Hypoelastic* kmaC_Hypoelastic::Copy() const { return mem_New<kmaC_Hypoelastic>(*this); }
void kmaC_Hypoelastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Hypoelastic::operator==(const kmaC_Hypoelastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Hypoelastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Hypoelastic&>(o); }
void kmaC_Hypoelastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Hypoelastic>(r); }
void kmaC_Hypoelastic::CowDtor(void* p) { fw_CowDtor<kmaC_Hypoelastic>(p); }

void kmaC_Hypoelastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
