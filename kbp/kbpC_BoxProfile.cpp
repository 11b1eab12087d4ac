#include "kbp/kbpC_BoxProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_BoxProfile::kbpC_BoxProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_BoxProfile::AssertValid() const {
  kbpC_Assert(b > 0, kbpC_HeightNotPositive);
  kbpC_Assert(a > 0, kbpC_WidthNotPositive);
  if (uniformThickness) {
    kbpC_Assert(t1 > 0, kbpC_ThicknessNotPositive);
    kbpC_Assert(t1 < a / 2, kbpC_ThicknessNotBelowHalfWidth);
    kbpC_Assert(t1 < b / 2, kbpC_ThicknessNotBelowHalfHeight);
  } else {
    kbpC_Assert(t1 > 0 && t2 > 0 && t3 > 0 && t4 > 0, kbpC_ThicknessesNotPositive);
    kbpC_Assert(t1 + t3 < a, kbpC_T1PlusT3NotBelowWidth);
    kbpC_Assert(t2 + t4 < b, kbpC_T2PlusT4NotBelowHeight);
  }
}

template class fw_PersistentClass<kbpC_BoxProfile, kbpC_BeamProfile>;
