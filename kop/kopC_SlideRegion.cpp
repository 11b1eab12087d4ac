#include "kop/kopC_SlideRegion.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SlideRegion::kopC_SlideRegion(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SlideRegion::AssertValid() const {
  // A slide region holds only its region.
}

template class fw_PersistentClass<kopC_SlideRegion, kopC_GeometricRestriction>;
