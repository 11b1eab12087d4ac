#include "kbe/kbeC_ConnectorLock.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorLock::kbeC_ConnectorLock(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kbeC_ConnectorLock::AssertValid() const {
  kbeC_CheckLimits(components, lockingComponent, minMotion, maxMotion, minForce, maxForce);
}

template class fw_PersistentClass<kbeC_ConnectorLock, kbeC_ConnectorBehaviorOption>;
