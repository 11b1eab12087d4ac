#include "kop/kopC_CyclicSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_CyclicSymmetry::kopC_CyclicSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_CyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}

template class fw_PersistentClass<kopC_CyclicSymmetry, kopC_GeometricRestriction>;
