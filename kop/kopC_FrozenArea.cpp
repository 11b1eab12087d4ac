#include "kop/kopC_FrozenArea.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_FrozenArea::kopC_FrozenArea(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_FrozenArea::AssertValid() const {
  // A frozen area holds only its region.
}

template class fw_PersistentClass<kopC_FrozenArea, kopC_GeometricRestriction>;
