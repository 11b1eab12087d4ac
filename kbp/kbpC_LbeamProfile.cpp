#include "kbp/kbpC_LbeamProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_LbeamProfile::kbpC_LbeamProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_LbeamProfile::AssertValid() const {
  kbpC_Assert(a > 0, kbpC_DimensionANotPositive);
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
  kbpC_Assert(t1 > 0, kbpC_ThicknessT1NotPositive);
  kbpC_Assert(t2 > 0, kbpC_ThicknessT2NotPositive);
  kbpC_Assert(t1 < b, kbpC_T1NotBelowB);
  kbpC_Assert(t2 < a, kbpC_T2NotBelowA);
}

template class fw_PersistentClass<kbpC_LbeamProfile, kbpC_BeamProfile>;
