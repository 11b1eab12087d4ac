#include "kop/kopC_GrowthRestriction.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_GrowthRestriction::kopC_GrowthRestriction(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_GrowthRestriction::AssertValid() const {
  kopC_Assert(growth != kopC_kUnset || shrink != kopC_kUnset, kopC_GrowthOrShrinkMissing);
  kopC_Assert(growth == kopC_kUnset || growth >= 0, kopC_GrowthNegative);
  kopC_Assert(shrink == kopC_kUnset || shrink >= 0, kopC_ShrinkNegative);
}

template class fw_PersistentClass<kopC_GrowthRestriction, kopC_GeometricRestriction>;
