#include "kop/kopC_SizingPlanarSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SizingPlanarSymmetry::kopC_SizingPlanarSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SizingPlanarSymmetry::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_SizingPlanarSymmetry, kopC_GeometricRestriction>;
