#include "kbp/kbpC_HatProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_HatProfile::kbpC_HatProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The height check of code 16 compares each of t1 and t2 with half the height. Rules 20 and 21
// repeat rule 11; the order of the rules is fixed, so they stay.
void kbpC_HatProfile::AssertValid() const {
  kbpC_Assert(h > 0, kbpC_HeightNotPositive);
  kbpC_Assert(t3 > 0, kbpC_WebThicknessNotPositive);
  kbpC_Assert(t1 > 0 && t2 > 0 && t3 > 0, kbpC_ThicknessesNotPositive);
  kbpC_Assert(t1 + t2 < h, kbpC_T1PlusT2NotBelowHeight);
  kbpC_Assert(t1 < h / 2 && t2 < h / 2, kbpC_ThicknessNotBelowHalfHeight);
  kbpC_Assert(t3 < b1 / 2, kbpC_T3NotBelowHalfB1);
  kbpC_Assert(t1 > 0, kbpC_ThicknessOneNotPositive);
  kbpC_Assert(t2 > 0, kbpC_ThicknessTwoNotPositive);
  kbpC_Assert(b1 > 0 || b2 > 0, kbpC_NoFlangeWidth);
}

template class fw_PersistentClass<kbpC_HatProfile, kbpC_BeamProfile>;
