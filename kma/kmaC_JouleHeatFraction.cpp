#include "kma/kmaC_JouleHeatFraction.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_JouleHeatFraction::kmaC_JouleHeatFraction(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_JouleHeatFraction* kmaC_JouleHeatFraction::Copy() const { return mem_New<kmaC_JouleHeatFraction>(*this); }
void kmaC_JouleHeatFraction::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_JouleHeatFraction::operator==(const kmaC_JouleHeatFraction& o) const { return fw_EqualFields(*this, o); }
bool kmaC_JouleHeatFraction::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_JouleHeatFraction&>(o); }
void kmaC_JouleHeatFraction::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_JouleHeatFraction>(r); }
void kmaC_JouleHeatFraction::CowDtor(void* p) { fw_CowDtor<kmaC_JouleHeatFraction>(p); }

void kmaC_JouleHeatFraction::AssertValid() const {
  kmaC_Assert(fraction <= 1.0, kmaC_FractionAboveMaximum);
}
