#include "kbe/kbeC_ConnectorLock.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorLock::kbeC_ConnectorLock(const cls_ReadVisitor& r) : kbeC_ConnectorBehaviorOption(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorLock::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorLock* kbeC_ConnectorLock::Copy() const { return new kbeC_ConnectorLock(*this); }
bool kbeC_ConnectorLock::operator==(const kbeC_ConnectorLock& o) const { return fw_EqualFields(*this, o); }
bool kbeC_ConnectorLock::SameAs(const kbeC_ConnectorBehaviorOption& o) const { return *this == static_cast<const kbeC_ConnectorLock&>(o); }
void kbeC_ConnectorLock::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorLock>(r); }
void kbeC_ConnectorLock::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorLock>(p); }

void kbeC_ConnectorLock::AssertValid() const {
  kbeC_CheckLimits(components, lockingComponent, minMotion, maxMotion, minForce, maxForce);
}
