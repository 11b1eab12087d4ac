#include "kop/kopC_BeadPointSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadPointSymmetry::kopC_BeadPointSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadPointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_BeadPointSymmetry, kopC_GeometricRestriction>;
