#include "kbe/kbeC_ConnectorStop.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorStop::kbeC_ConnectorStop(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kbeC_ConnectorStop::AssertValid() const {
  kbeC_CheckComponents(components);
  kbeC_Assert(minMotion != kbeC_kUnspecified || maxMotion != kbeC_kUnspecified, kbeC_NoDisplacementLimit);
  if (minMotion != kbeC_kUnspecified && maxMotion != kbeC_kUnspecified)
    kbeC_Assert(minMotion < maxMotion, kbeC_MinMotionNotBelowMax);
}

template class fw_PersistentClass<kbeC_ConnectorStop, kbeC_ConnectorBehaviorOption>;
