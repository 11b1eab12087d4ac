#include "kop/kopC_PlanarSymmetry.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_PlanarSymmetry::kopC_PlanarSymmetry(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_PlanarSymmetry::AssertValid() const {
  // Any axis of the plane is allowed.
}

template class fw_PersistentClass<kopC_PlanarSymmetry, kopC_GeometricRestriction>;
