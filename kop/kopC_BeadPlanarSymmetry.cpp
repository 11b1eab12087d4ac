#include "kop/kopC_BeadPlanarSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadPlanarSymmetry::kopC_BeadPlanarSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadPlanarSymmetry::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_BeadPlanarSymmetry, kopC_GeometricRestriction>;
