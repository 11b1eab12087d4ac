#include "kop/kopC_SizingFrozenArea.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SizingFrozenArea::kopC_SizingFrozenArea(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SizingFrozenArea::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_SizingFrozenArea, kopC_GeometricRestriction>;
