#include "kop/kopC_BeadPenetrationCheck.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_BeadPenetrationCheck::kopC_BeadPenetrationCheck(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_BeadPenetrationCheck::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_BeadPenetrationCheck, kopC_GeometricRestriction>;
