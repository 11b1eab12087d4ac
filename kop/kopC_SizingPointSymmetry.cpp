#include "kop/kopC_SizingPointSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SizingPointSymmetry::kopC_SizingPointSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SizingPointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_SizingPointSymmetry, kopC_GeometricRestriction>;
