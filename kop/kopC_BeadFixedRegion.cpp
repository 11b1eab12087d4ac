#include "kop/kopC_BeadFixedRegion.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadFixedRegion::kopC_BeadFixedRegion(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadFixedRegion::AssertValid() const {
  kopC_Assert(u1 || u2 || u3, kopC_FixedRegionDirection);
}

template class fw_PersistentClass<kopC_BeadFixedRegion, kopC_GeometricRestriction>;
