#include "kef/kefC_PointFastener.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_PointFastener::kefC_PointFastener(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

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

template class fw_PersistentClass<kefC_PointFastener, kefC_Fastener>;
