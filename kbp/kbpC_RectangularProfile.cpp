#include "kbp/kbpC_RectangularProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_RectangularProfile::kbpC_RectangularProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_RectangularProfile::AssertValid() const {
  kbpC_Assert(a > 0, kbpC_DimensionANotPositive);
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
}

template class fw_PersistentClass<kbpC_RectangularProfile, kbpC_BeamProfile>;
