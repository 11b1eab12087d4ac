#include "kop/kopC_ShapeMemberSize.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_ShapeMemberSize::kopC_ShapeMemberSize(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_ShapeMemberSize::AssertValid() const {
  kopC_Assert(sizeRestriction != SizeRestrictionEnm::NONE, kopC_SizeRestrictionKind);
  kopC_Assert(minThickness == kopC_kUnset || minThickness > 0, kopC_MinThicknessNotPositive);
  kopC_Assert(maxThickness == kopC_kUnset || maxThickness > 0, kopC_MaxThicknessNotPositive);
}

template class fw_PersistentClass<kopC_ShapeMemberSize, kopC_GeometricRestriction>;
