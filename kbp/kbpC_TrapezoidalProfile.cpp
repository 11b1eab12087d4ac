#include "kbp/kbpC_TrapezoidalProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_TrapezoidalProfile::kbpC_TrapezoidalProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_TrapezoidalProfile::AssertValid() const {
  kbpC_Assert(a > 0, kbpC_DimensionANotPositive);
  kbpC_Assert(b > 0, kbpC_DimensionBNotPositive);
  kbpC_Assert(c > 0, kbpC_DimensionCNotPositive);
}

template class fw_PersistentClass<kbpC_TrapezoidalProfile, kbpC_BeamProfile>;
