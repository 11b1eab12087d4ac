#include "kop/kopC_ThicknessControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ThicknessControl::kopC_ThicknessControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ThicknessControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ThicknessControl* kopC_ThicknessControl::Copy() const { return new kopC_ThicknessControl(*this); }
bool kopC_ThicknessControl::operator==(const kopC_ThicknessControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_ThicknessControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ThicknessControl&>(o); }
void kopC_ThicknessControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ThicknessControl>(r); }
void kopC_ThicknessControl::CowDtor(void* p) { fw_CowDtor<kopC_ThicknessControl>(p); }

void kopC_ThicknessControl::AssertValid() const {
  kopC_Assert(minThickness != kopC_kUnset || maxThickness != kopC_kUnset, kopC_ThicknessRestrictionMissing);
  kopC_Assert(minThickness == kopC_kUnset || minThickness > 0, kopC_MinThicknessNotPositive);
  kopC_Assert(maxThickness == kopC_kUnset || maxThickness > 0, kopC_MaxThicknessNotPositive);
  kopC_Assert(minThickness == kopC_kUnset || maxThickness == kopC_kUnset || maxThickness >= minThickness,
              kopC_MaxThicknessBelowMin);
}
