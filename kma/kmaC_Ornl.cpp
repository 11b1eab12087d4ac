#include "kma/kmaC_Ornl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Ornl::kmaC_Ornl(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

// A negative saturation rate would drive the shift away from saturation.
void kmaC_Ornl::AssertValid() const {
  kmaC_Assert(saturationRateParameter >= 0.0, kmaC_HardeningRateBelowMinimum);
}

template class fw_PersistentClass<kmaC_Ornl, kmaC_MaterialOption>;
