#include "kma/kmaC_Hyperfoam.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Hyperfoam::kmaC_Hyperfoam(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Hyperfoam* kmaC_Hyperfoam::Copy() const { return mem_New<kmaC_Hyperfoam>(*this); }
void kmaC_Hyperfoam::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Hyperfoam::operator==(const kmaC_Hyperfoam& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Hyperfoam::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Hyperfoam&>(o); }
void kmaC_Hyperfoam::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Hyperfoam>(r); }
void kmaC_Hyperfoam::CowDtor(void* p) { fw_CowDtor<kmaC_Hyperfoam>(p); }

void kmaC_Hyperfoam::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(n >= 1, kmaC_NBelowMinimum);
  kmaC_Assert(n <= 6, kmaC_NAboveMaximum);
  kmaC_Assert(poisson >= -1.0, kmaC_PoissonBelowMinimum);
  kmaC_Assert(poisson <= 0.5, kmaC_PoissonAboveMaximum);
  table.AssertValid();
}
