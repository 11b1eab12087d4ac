#include "kop/kopC_ThicknessControl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ThicknessControl::kopC_ThicknessControl(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ThicknessControl::AssertValid() const {
  kopC_Assert(minThickness != kopC_kUnset || maxThickness != kopC_kUnset, kopC_ThicknessRestrictionMissing);
  kopC_Assert(minThickness == kopC_kUnset || minThickness > 0, kopC_MinThicknessNotPositive);
  kopC_Assert(maxThickness == kopC_kUnset || maxThickness > 0, kopC_MaxThicknessNotPositive);
  kopC_Assert(minThickness == kopC_kUnset || maxThickness == kopC_kUnset || maxThickness >= minThickness,
              kopC_MaxThicknessBelowMin);
}

template class fw_PersistentClass<kopC_ThicknessControl, kopC_GeometricRestriction>;
