#include "kbp/kbpC_CbeamProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_CbeamProfile::kbpC_CbeamProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The height check of code 16 compares each flange thickness (t1, t2) with half the height.
// The web is checked against both flange widths, as its message says, even where one flange
// is absent. The last rule repeats an earlier one; the order of the rules is fixed, so it stays.
void kbpC_CbeamProfile::AssertValid() const {
  kbpC_Assert(h > 0, kbpC_HeightNotPositive);
  kbpC_Assert(t3 > 0, kbpC_WebThicknessNotPositive);
  kbpC_Assert(t2 > 0, kbpC_ThicknessTwoNotPositive);
  kbpC_Assert(b1 > 0 || b2 > 0, kbpC_NoFlangeWidth);
  kbpC_Assert(t1 > 0 && t2 > 0 && t3 > 0, kbpC_ThicknessesNotPositive);
  kbpC_Assert(t1 + t2 < h, kbpC_T1PlusT2NotBelowHeight);
  kbpC_Assert(t1 < h / 2 && t2 < h / 2, kbpC_ThicknessNotBelowHalfHeight);
  kbpC_Assert(t3 < b1 && t3 < b2, kbpC_T3NotBelowFlanges);
  kbpC_Assert(t1 > 0, kbpC_ThicknessOneNotPositive);
}

template class fw_PersistentClass<kbpC_CbeamProfile, kbpC_BeamProfile>;
