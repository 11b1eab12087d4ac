#include "kef/kefC_PointFastener.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_PointFastener::kefC_PointFastener(const cls_ReadVisitor& reader) : kefC_Fastener(reader) { fw_ReadFields(*this, reader); }
void kefC_PointFastener::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_PointFastener* kefC_PointFastener::Copy() const { return new kefC_PointFastener(*this); }
bool kefC_PointFastener::operator==(const kefC_PointFastener& o) const { return fw_EqualFields(*this, o); }
bool kefC_PointFastener::SameAs(const kefC_Fastener& o) const { return *this == static_cast<const kefC_PointFastener&>(o); }
void kefC_PointFastener::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_PointFastener>(r); }
void kefC_PointFastener::CowDtor(void* p) { fw_CowDtor<kefC_PointFastener>(p); }

// Every point fastener names its section, a connector's as much as a beam MPC's; whether an MPC
// section is of beam type only the model can judge.
void kefC_PointFastener::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertFastenerValid();
  kefC_Assert(searchRadius > 0, kefC_SearchRadiusNotPositive);
  kefC_Assert(physicalRadius > 0, kefC_PhysicalRadiusNotPositive);
  kefC_Assert(maximumLayers.value >= 1, kefC_MaximumLayersNotPositive);
  kefC_Assert(!sectionName.empty(), kefC_NoConnectorSection);
}
