#include "kop/kopC_ShapePointSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapePointSymmetry::kopC_ShapePointSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapePointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_ShapePointSymmetry, kopC_GeometricRestriction>;
