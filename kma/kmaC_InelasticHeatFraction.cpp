#include "kma/kmaC_InelasticHeatFraction.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_InelasticHeatFraction::kmaC_InelasticHeatFraction(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_InelasticHeatFraction* kmaC_InelasticHeatFraction::Copy() const { return mem_New<kmaC_InelasticHeatFraction>(*this); }
void kmaC_InelasticHeatFraction::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_InelasticHeatFraction::operator==(const kmaC_InelasticHeatFraction& o) const { return fw_EqualFields(*this, o); }
bool kmaC_InelasticHeatFraction::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_InelasticHeatFraction&>(o); }
void kmaC_InelasticHeatFraction::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_InelasticHeatFraction>(r); }
void kmaC_InelasticHeatFraction::CowDtor(void* p) { fw_CowDtor<kmaC_InelasticHeatFraction>(p); }

void kmaC_InelasticHeatFraction::AssertValid() const {
  kmaC_Assert(fraction <= 1.0, kmaC_FractionAboveMaximum);
}
