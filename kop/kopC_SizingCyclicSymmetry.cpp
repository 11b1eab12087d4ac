#include "kop/kopC_SizingCyclicSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SizingCyclicSymmetry::kopC_SizingCyclicSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SizingCyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}

template class fw_PersistentClass<kopC_SizingCyclicSymmetry, kopC_GeometricRestriction>;
