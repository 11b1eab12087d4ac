#include "kma/kmaC_CrushStress.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_CrushStress::kmaC_CrushStress(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CrushStress* kmaC_CrushStress::Copy() const { return mem_New<kmaC_CrushStress>(*this); }
void kmaC_CrushStress::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CrushStress::operator==(const kmaC_CrushStress& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CrushStress::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CrushStress&>(o); }
void kmaC_CrushStress::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CrushStress>(r); }
void kmaC_CrushStress::CowDtor(void* p) { fw_CowDtor<kmaC_CrushStress>(p); }

void kmaC_CrushStress::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
  if (const kmaC_MaterialOption* factor = crushStressVelocityFactor.ConstGet()) factor->AssertValid();
}
