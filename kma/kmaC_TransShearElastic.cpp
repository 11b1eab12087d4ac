#include "kma/kmaC_TransShearElastic.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_TransShearElastic::kmaC_TransShearElastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_TransShearElastic* kmaC_TransShearElastic::Copy() const { return mem_New<kmaC_TransShearElastic>(*this); }
void kmaC_TransShearElastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_TransShearElastic::operator==(const kmaC_TransShearElastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_TransShearElastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_TransShearElastic&>(o); }
void kmaC_TransShearElastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_TransShearElastic>(r); }
void kmaC_TransShearElastic::CowDtor(void* p) { fw_CowDtor<kmaC_TransShearElastic>(p); }

void kmaC_TransShearElastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
