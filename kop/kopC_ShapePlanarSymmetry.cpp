#include "kop/kopC_ShapePlanarSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapePlanarSymmetry::kopC_ShapePlanarSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapePlanarSymmetry::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_ShapePlanarSymmetry, kopC_GeometricRestriction>;
