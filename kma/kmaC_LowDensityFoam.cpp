#include "kma/kmaC_LowDensityFoam.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_LowDensityFoam::kmaC_LowDensityFoam(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_LowDensityFoam* kmaC_LowDensityFoam::Copy() const { return mem_New<kmaC_LowDensityFoam>(*this); }
void kmaC_LowDensityFoam::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_LowDensityFoam::operator==(const kmaC_LowDensityFoam& o) const { return fw_EqualFields(*this, o); }
bool kmaC_LowDensityFoam::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_LowDensityFoam&>(o); }
void kmaC_LowDensityFoam::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_LowDensityFoam>(r); }
void kmaC_LowDensityFoam::CowDtor(void* p) { fw_CowDtor<kmaC_LowDensityFoam>(p); }

void kmaC_LowDensityFoam::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(!elementRemoval || maxAllowablePrincipalStress > 0.0, kmaC_MaxPrincipalStressNotPositive);
  table.AssertValid();
}
