#include "kma/kmaC_CrushStressVelocityFactor.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CrushStressVelocityFactor::kmaC_CrushStressVelocityFactor(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CrushStressVelocityFactor* kmaC_CrushStressVelocityFactor::Copy() const { return mem_New<kmaC_CrushStressVelocityFactor>(*this); }
void kmaC_CrushStressVelocityFactor::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CrushStressVelocityFactor::operator==(const kmaC_CrushStressVelocityFactor& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CrushStressVelocityFactor::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CrushStressVelocityFactor&>(o); }
void kmaC_CrushStressVelocityFactor::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CrushStressVelocityFactor>(r); }
void kmaC_CrushStressVelocityFactor::CowDtor(void* p) { fw_CowDtor<kmaC_CrushStressVelocityFactor>(p); }

void kmaC_CrushStressVelocityFactor::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
