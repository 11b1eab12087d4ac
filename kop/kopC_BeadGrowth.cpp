#include "kop/kopC_BeadGrowth.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadGrowth::kopC_BeadGrowth(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadGrowth::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadGrowth* kopC_BeadGrowth::Copy() const { return new kopC_BeadGrowth(*this); }
bool kopC_BeadGrowth::operator==(const kopC_BeadGrowth& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadGrowth::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadGrowth&>(o); }
void kopC_BeadGrowth::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadGrowth>(r); }
void kopC_BeadGrowth::CowDtor(void* p) { fw_CowDtor<kopC_BeadGrowth>(p); }

void kopC_BeadGrowth::AssertValid() const {
  kopC_Assert(growth != kopC_kUnset || shrink != kopC_kUnset, kopC_GrowthOrShrinkMissing);
  kopC_Assert(growth == kopC_kUnset || growth >= 0, kopC_GrowthNegative);
  kopC_Assert(shrink == kopC_kUnset || shrink >= 0, kopC_ShrinkNegative);
}
