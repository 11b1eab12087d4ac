#include "kop/kopC_SizingClusterAreas.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SizingClusterAreas::kopC_SizingClusterAreas(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SizingClusterAreas::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_SizingClusterAreas, kopC_GeometricRestriction>;
