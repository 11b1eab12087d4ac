#include "kma/kmaC_MohrCoulomb.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_MohrCoulomb::kmaC_MohrCoulomb(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_MohrCoulomb* kmaC_MohrCoulomb::Copy() const { return mem_New<kmaC_MohrCoulomb>(*this); }
void kmaC_MohrCoulomb::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_MohrCoulomb::operator==(const kmaC_MohrCoulomb& o) const { return fw_EqualFields(*this, o); }
bool kmaC_MohrCoulomb::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_MohrCoulomb&>(o); }
void kmaC_MohrCoulomb::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_MohrCoulomb>(r); }
void kmaC_MohrCoulomb::CowDtor(void* p) { fw_CowDtor<kmaC_MohrCoulomb>(p); }

void kmaC_MohrCoulomb::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(meridionalEccentricity >= 0.0, kmaC_EccentricityBelowMinimum);
  // The flow potential stays convex and smooth only for 0.5 < e <= 1.
  kmaC_Assert(deviatoricEccentricity > 0.5 && deviatoricEccentricity <= 1.0, kmaC_InvalidFlowPotentialEccentricity);
  table.AssertValid();
}
