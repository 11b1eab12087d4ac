#include "kma/kmaC_ShearRetention.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_ShearRetention::kmaC_ShearRetention(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ShearRetention* kmaC_ShearRetention::Copy() const { return mem_New<kmaC_ShearRetention>(*this); }
void kmaC_ShearRetention::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ShearRetention::operator==(const kmaC_ShearRetention& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ShearRetention::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ShearRetention&>(o); }
void kmaC_ShearRetention::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ShearRetention>(r); }
void kmaC_ShearRetention::CowDtor(void* p) { fw_CowDtor<kmaC_ShearRetention>(p); }

void kmaC_ShearRetention::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
