#include "kop/kopC_SizingRotationalSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SizingRotationalSymmetry::kopC_SizingRotationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SizingRotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}

template class fw_PersistentClass<kopC_SizingRotationalSymmetry, kopC_GeometricRestriction>;
