#include "kma/kmaC_MeanFieldHomogenization.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_MeanFieldHomogenization::kmaC_MeanFieldHomogenization(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_MeanFieldHomogenization* kmaC_MeanFieldHomogenization::Copy() const { return mem_New<kmaC_MeanFieldHomogenization>(*this); }
void kmaC_MeanFieldHomogenization::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_MeanFieldHomogenization::operator==(const kmaC_MeanFieldHomogenization& o) const { return fw_EqualFields(*this, o); }
bool kmaC_MeanFieldHomogenization::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_MeanFieldHomogenization&>(o); }
void kmaC_MeanFieldHomogenization::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_MeanFieldHomogenization>(r); }
void kmaC_MeanFieldHomogenization::CowDtor(void* p) { fw_CowDtor<kmaC_MeanFieldHomogenization>(p); }

void kmaC_MeanFieldHomogenization::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(angleIncrement > 0, kmaC_AngleIncrementNotPositive);
}
