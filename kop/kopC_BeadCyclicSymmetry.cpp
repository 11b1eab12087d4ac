#include "kop/kopC_BeadCyclicSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadCyclicSymmetry::kopC_BeadCyclicSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadCyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}

template class fw_PersistentClass<kopC_BeadCyclicSymmetry, kopC_GeometricRestriction>;
