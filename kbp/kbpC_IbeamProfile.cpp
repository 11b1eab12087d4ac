#include "kbp/kbpC_IbeamProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_IbeamProfile::kbpC_IbeamProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The last rule repeats the ones before it; the order of the rules is fixed, so it stays.
void kbpC_IbeamProfile::AssertValid() const {
  kbpC_Assert(h > 0, kbpC_HeightNotPositive);
  kbpC_Assert(t3 > 0, kbpC_WebThicknessNotPositive);
  kbpC_Assert(b1 > 0 || b2 > 0, kbpC_NoFlangeWidth);
  kbpC_Assert(t2 > 0, kbpC_ThicknessTwoNotPositive);
  kbpC_Assert(t1 > 0, kbpC_ThicknessOneNotPositive);
  kbpC_Assert(t1 > 0 && t2 > 0 && t3 > 0, kbpC_ThicknessesNotPositive);
}

template class fw_PersistentClass<kbpC_IbeamProfile, kbpC_BeamProfile>;
