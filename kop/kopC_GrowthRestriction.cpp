#include "kop/kopC_GrowthRestriction.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_GrowthRestriction::kopC_GrowthRestriction(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_GrowthRestriction::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_GrowthRestriction* kopC_GrowthRestriction::Copy() const { return new kopC_GrowthRestriction(*this); }
bool kopC_GrowthRestriction::operator==(const kopC_GrowthRestriction& o) const { return fw_EqualFields(*this, o); }
bool kopC_GrowthRestriction::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_GrowthRestriction&>(o); }
void kopC_GrowthRestriction::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_GrowthRestriction>(r); }
void kopC_GrowthRestriction::CowDtor(void* p) { fw_CowDtor<kopC_GrowthRestriction>(p); }

void kopC_GrowthRestriction::AssertValid() const {
  kopC_Assert(growth != kopC_kUnset || shrink != kopC_kUnset, kopC_GrowthOrShrinkMissing);
  kopC_Assert(growth == kopC_kUnset || growth >= 0, kopC_GrowthNegative);
  kopC_Assert(shrink == kopC_kUnset || shrink >= 0, kopC_ShrinkNegative);
}
