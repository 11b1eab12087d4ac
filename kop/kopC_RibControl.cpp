#include "kop/kopC_RibControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_RibControl::kopC_RibControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_RibControl::AssertValid() const {
  kopC_Assert(ribThickness > 0, kopC_RibThicknessNotPositive);
  kopC_Assert(ribDistance > 0, kopC_RibDistanceNotPositive);
}

template class fw_PersistentClass<kopC_RibControl, kopC_GeometricRestriction>;
