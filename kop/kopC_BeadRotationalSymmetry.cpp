#include "kop/kopC_BeadRotationalSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadRotationalSymmetry::kopC_BeadRotationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadRotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}

template class fw_PersistentClass<kopC_BeadRotationalSymmetry, kopC_GeometricRestriction>;
