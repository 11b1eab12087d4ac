#include "kma/kmaC_GapConvection.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_GapConvection::kmaC_GapConvection(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_GapConvection* kmaC_GapConvection::Copy() const { return mem_New<kmaC_GapConvection>(*this); }
void kmaC_GapConvection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_GapConvection::operator==(const kmaC_GapConvection& o) const { return fw_EqualFields(*this, o); }
bool kmaC_GapConvection::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_GapConvection&>(o); }
void kmaC_GapConvection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_GapConvection>(r); }
void kmaC_GapConvection::CowDtor(void* p) { fw_CowDtor<kmaC_GapConvection>(p); }

void kmaC_GapConvection::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
