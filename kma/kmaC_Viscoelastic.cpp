#include "kma/kmaC_Viscoelastic.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Viscoelastic::kmaC_Viscoelastic(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Viscoelastic* kmaC_Viscoelastic::Copy() const { return mem_New<kmaC_Viscoelastic>(*this); }
void kmaC_Viscoelastic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Viscoelastic::operator==(const kmaC_Viscoelastic& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Viscoelastic::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Viscoelastic&>(o); }
void kmaC_Viscoelastic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Viscoelastic>(r); }
void kmaC_Viscoelastic::CowDtor(void* p) { fw_CowDtor<kmaC_Viscoelastic>(p); }

void kmaC_Viscoelastic::AssertValid() const {
  kmaC_Assert(nmax >= 1, kmaC_NmaxBelowMinimum);
  kmaC_Assert(nmax <= 13, kmaC_NmaxAboveMaximum);
  kmaC_Assert(type != TypeEnm::TRACTION || (preload != PreloadEnm::VOLUMETRIC && preload != PreloadEnm::UNIAXIAL_VOLUMETRIC),
              kmaC_VolumetricPreloadWithTraction);
  table.AssertValid();
  volumetricTable.AssertValid();
}
