#include "kbe/kbeC_ConnectorStop.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorStop::kbeC_ConnectorStop(const cls_ReadVisitor& r) : kbeC_ConnectorBehaviorOption(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorStop::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorStop* kbeC_ConnectorStop::Copy() const { return new kbeC_ConnectorStop(*this); }
bool kbeC_ConnectorStop::operator==(const kbeC_ConnectorStop& o) const { return fw_EqualFields(*this, o); }
bool kbeC_ConnectorStop::SameAs(const kbeC_ConnectorBehaviorOption& o) const { return *this == static_cast<const kbeC_ConnectorStop&>(o); }
void kbeC_ConnectorStop::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorStop>(r); }
void kbeC_ConnectorStop::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorStop>(p); }

void kbeC_ConnectorStop::AssertValid() const {
  kbeC_CheckComponents(components);
  kbeC_Assert(minMotion != kbeC_kUnspecified || maxMotion != kbeC_kUnspecified, kbeC_NoDisplacementLimit);
  if (minMotion != kbeC_kUnspecified && maxMotion != kbeC_kUnspecified)
    kbeC_Assert(minMotion < maxMotion, kbeC_MinMotionNotBelowMax);
}
