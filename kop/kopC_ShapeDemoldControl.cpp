#include "kop/kopC_ShapeDemoldControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapeDemoldControl::kopC_ShapeDemoldControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapeDemoldControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapeDemoldControl* kopC_ShapeDemoldControl::Copy() const { return new kopC_ShapeDemoldControl(*this); }
bool kopC_ShapeDemoldControl::operator==(const kopC_ShapeDemoldControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapeDemoldControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapeDemoldControl&>(o); }
void kopC_ShapeDemoldControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapeDemoldControl>(r); }
void kopC_ShapeDemoldControl::CowDtor(void* p) { fw_CowDtor<kopC_ShapeDemoldControl>(p); }

void kopC_ShapeDemoldControl::AssertValid() const {
  kopC_Assert(drawAngle >= 0 && drawAngle < 45, kopC_DrawAngleOutOfRange);
  kopC_Assert(undercutTolerance >= 0, kopC_UndercutToleranceNegative);
  kopC_Assert(collisionCheckTolerance > 0, kopC_GeometricToleranceNotPositive);
}
