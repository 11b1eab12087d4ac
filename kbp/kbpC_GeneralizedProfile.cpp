#include "kbp/kbpC_GeneralizedProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_GeneralizedProfile::kbpC_GeneralizedProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The bound on i12 is strict below and inclusive above, on purpose.
void kbpC_GeneralizedProfile::AssertValid() const {
  kbpC_Assert(area > 0, kbpC_AreaNotPositive);
  kbpC_Assert(i11 > 0, kbpC_I11NotPositive);
  const double half = (i11 + i22) / 2;
  kbpC_Assert(-half < i12 && i12 <= half, kbpC_I12OutOfRange);
  kbpC_Assert(i22 != 0 || i12 == 0, kbpC_I12NotZeroWithZeroI22);
  kbpC_Assert(i22 >= 0, kbpC_I22Negative);
  kbpC_Assert(j >= 0, kbpC_JNegative);
}

template class fw_PersistentClass<kbpC_GeneralizedProfile, kbpC_BeamProfile>;
