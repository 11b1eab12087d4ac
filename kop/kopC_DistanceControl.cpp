#include "kop/kopC_DistanceControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_DistanceControl::kopC_DistanceControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_DistanceControl::AssertValid() const {
  kopC_Assert(distance >= 0, kopC_DistanceNegative);
}

template class fw_PersistentClass<kopC_DistanceControl, kopC_GeometricRestriction>;
