#include "kma/kmaC_Viscoelastic.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Viscoelastic::kmaC_Viscoelastic(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Viscoelastic::AssertValid() const {
  kmaC_Assert(nmax >= 1, kmaC_NmaxBelowMinimum);
  kmaC_Assert(nmax <= 13, kmaC_NmaxAboveMaximum);
  kmaC_Assert(type != TypeEnm::TRACTION || (preload != PreloadEnm::VOLUMETRIC && preload != PreloadEnm::UNIAXIAL_VOLUMETRIC),
              kmaC_VolumetricPreloadWithTraction);
  table.AssertValid();
  volumetricTable.AssertValid();
}

template class fw_PersistentClass<kmaC_Viscoelastic, kmaC_MaterialOption>;
