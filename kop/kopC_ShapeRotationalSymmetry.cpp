#include "kop/kopC_ShapeRotationalSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapeRotationalSymmetry::kopC_ShapeRotationalSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapeRotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}

template class fw_PersistentClass<kopC_ShapeRotationalSymmetry, kopC_GeometricRestriction>;
