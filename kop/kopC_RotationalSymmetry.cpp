#include "kop/kopC_RotationalSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_RotationalSymmetry::kopC_RotationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_RotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}

template class fw_PersistentClass<kopC_RotationalSymmetry, kopC_GeometricRestriction>;
