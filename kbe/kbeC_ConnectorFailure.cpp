#include "kbe/kbeC_ConnectorFailure.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorFailure::kbeC_ConnectorFailure(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kbeC_ConnectorFailure::AssertValid() const {
  kbeC_CheckLimits(components, releaseComponent, minMotion, maxMotion, minForce, maxForce);
}

template class fw_PersistentClass<kbeC_ConnectorFailure, kbeC_ConnectorBehaviorOption>;
