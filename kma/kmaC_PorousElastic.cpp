#include "kma/kmaC_PorousElastic.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_PorousElastic::kmaC_PorousElastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_PorousElastic* kmaC_PorousElastic::Copy() const { return mem_New<kmaC_PorousElastic>(*this); }
void kmaC_PorousElastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_PorousElastic::operator==(const kmaC_PorousElastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_PorousElastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_PorousElastic&>(o); }
void kmaC_PorousElastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_PorousElastic>(r); }
void kmaC_PorousElastic::CowDtor(void* p) { fw_CowDtor<kmaC_PorousElastic>(p); }

void kmaC_PorousElastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
