#include "kma/kmaC_Damping.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Damping::kmaC_Damping(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Damping* kmaC_Damping::Copy() const { return mem_New<kmaC_Damping>(*this); }
void kmaC_Damping::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Damping::operator==(const kmaC_Damping& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Damping::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Damping&>(o); }
void kmaC_Damping::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Damping>(r); }
void kmaC_Damping::CowDtor(void* p) { fw_CowDtor<kmaC_Damping>(p); }

// Stiffness-proportional damping may not be negative.
void kmaC_Damping::AssertValid() const {
  kmaC_Assert(beta >= 0.0, kmaC_BetaNegative);
}
