#include "kop/kopC_PenetrationCheck.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_PenetrationCheck::kopC_PenetrationCheck(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_PenetrationCheck::AssertValid() const {
  // The region is the whole restriction.
}

template class fw_PersistentClass<kopC_PenetrationCheck, kopC_GeometricRestriction>;
