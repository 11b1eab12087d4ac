#include "kbp/kbpC_CircularProfile.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbp/kbpC_assert.h"

kbpC_CircularProfile::kbpC_CircularProfile(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kbpC_CircularProfile::AssertValid() const {
  kbpC_Assert(r > 0, kbpC_RadiusNotPositive);
}

template class fw_PersistentClass<kbpC_CircularProfile, kbpC_BeamProfile>;
