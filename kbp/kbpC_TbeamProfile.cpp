#include "kbp/kbpC_TbeamProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_TbeamProfile::kbpC_TbeamProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_TbeamProfile::AssertValid() const {
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
  kbpC_Assert(h > 0, kbpC_DimensionHNotPositive);
  kbpC_Assert(tw > 0, kbpC_ThicknessTwNotPositive);
  kbpC_Assert(tf > 0, kbpC_ThicknessTfNotPositive);
  kbpC_Assert(tf < h, kbpC_TfNotBelowH);
  kbpC_Assert(tw < b, kbpC_TwNotBelowB);
}

template class fw_PersistentClass<kbpC_TbeamProfile, kbpC_BeamProfile>;
