#include "kop/kopC_ShapeDemoldControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapeDemoldControl::kopC_ShapeDemoldControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapeDemoldControl::AssertValid() const {
  kopC_Assert(drawAngle >= 0 && drawAngle < 45, kopC_DrawAngleOutOfRange);
  kopC_Assert(undercutTolerance >= 0, kopC_UndercutToleranceNegative);
  kopC_Assert(collisionCheckTolerance > 0, kopC_GeometricToleranceNotPositive);
}

template class fw_PersistentClass<kopC_ShapeDemoldControl, kopC_GeometricRestriction>;
