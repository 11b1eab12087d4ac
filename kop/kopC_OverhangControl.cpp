#include "kop/kopC_OverhangControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_OverhangControl::kopC_OverhangControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_OverhangControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_OverhangControl* kopC_OverhangControl::Copy() const { return new kopC_OverhangControl(*this); }
bool kopC_OverhangControl::operator==(const kopC_OverhangControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_OverhangControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_OverhangControl&>(o); }
void kopC_OverhangControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_OverhangControl>(r); }
void kopC_OverhangControl::CowDtor(void* p) { fw_CowDtor<kopC_OverhangControl>(p); }

void kopC_OverhangControl::AssertValid() const {
  kopC_Assert(overhangAngle > 0, kopC_OverhangAngleNotPositive);
  kopC_Assert(radius == kopC_kUnset || radius > 0, kopC_OverhangRadiusNotPositive);
  kopC_Assert(filterRadius == kopC_kUnset || filterRadius > 0, kopC_FilterRadiusNotPositive);
}
