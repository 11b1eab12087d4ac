#include "kbp/kbpC_PipeProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_PipeProfile::kbpC_PipeProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_PipeProfile::AssertValid() const {
  kbpC_Assert(r > 0, kbpC_RadiusNotPositive);
  kbpC_Assert(t > 0, kbpC_ThicknessNotPositive);
  kbpC_Assert(t < r, kbpC_ThicknessNotBelowRadius);
}

template class fw_PersistentClass<kbpC_PipeProfile, kbpC_BeamProfile>;
