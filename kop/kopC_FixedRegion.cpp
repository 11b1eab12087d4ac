#include "kop/kopC_FixedRegion.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_FixedRegion::kopC_FixedRegion(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_FixedRegion::AssertValid() const {
  kopC_Assert(u1 || u2 || u3, kopC_FixedRegionDirection);
}

template class fw_PersistentClass<kopC_FixedRegion, kopC_GeometricRestriction>;
