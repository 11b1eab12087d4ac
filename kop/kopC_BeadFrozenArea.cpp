#include "kop/kopC_BeadFrozenArea.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadFrozenArea::kopC_BeadFrozenArea(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadFrozenArea::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_BeadFrozenArea, kopC_GeometricRestriction>;
