#include "kbe/kbeC_ConnectorFailure.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorFailure::kbeC_ConnectorFailure(const cls_ReadVisitor& r) : kbeC_ConnectorBehaviorOption(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorFailure::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorFailure* kbeC_ConnectorFailure::Copy() const { return new kbeC_ConnectorFailure(*this); }
bool kbeC_ConnectorFailure::operator==(const kbeC_ConnectorFailure& o) const { return fw_EqualFields(*this, o); }
bool kbeC_ConnectorFailure::SameAs(const kbeC_ConnectorBehaviorOption& o) const { return *this == static_cast<const kbeC_ConnectorFailure&>(o); }
void kbeC_ConnectorFailure::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorFailure>(r); }
void kbeC_ConnectorFailure::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorFailure>(p); }

void kbeC_ConnectorFailure::AssertValid() const {
  kbeC_CheckLimits(components, releaseComponent, minMotion, maxMotion, minForce, maxForce);
}
