#include "kop/kopC_OverhangControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_OverhangControl::kopC_OverhangControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_OverhangControl::AssertValid() const {
  kopC_Assert(overhangAngle > 0, kopC_OverhangAngleNotPositive);
  kopC_Assert(radius == kopC_kUnset || radius > 0, kopC_OverhangRadiusNotPositive);
  kopC_Assert(filterRadius == kopC_kUnset || filterRadius > 0, kopC_FilterRadiusNotPositive);
}

template class fw_PersistentClass<kopC_OverhangControl, kopC_GeometricRestriction>;
