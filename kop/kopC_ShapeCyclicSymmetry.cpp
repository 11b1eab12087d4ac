#include "kop/kopC_ShapeCyclicSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapeCyclicSymmetry::kopC_ShapeCyclicSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapeCyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}

template class fw_PersistentClass<kopC_ShapeCyclicSymmetry, kopC_GeometricRestriction>;
