#include "kop/kopC_ShapeMemberSize.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapeMemberSize::kopC_ShapeMemberSize(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapeMemberSize::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapeMemberSize* kopC_ShapeMemberSize::Copy() const { return new kopC_ShapeMemberSize(*this); }
bool kopC_ShapeMemberSize::operator==(const kopC_ShapeMemberSize& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapeMemberSize::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapeMemberSize&>(o); }
void kopC_ShapeMemberSize::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapeMemberSize>(r); }
void kopC_ShapeMemberSize::CowDtor(void* p) { fw_CowDtor<kopC_ShapeMemberSize>(p); }

void kopC_ShapeMemberSize::AssertValid() const {
  kopC_Assert(sizeRestriction != SizeRestrictionEnm::NONE, kopC_SizeRestrictionKind);
  kopC_Assert(minThickness == kopC_kUnset || minThickness > 0, kopC_MinThicknessNotPositive);
  kopC_Assert(maxThickness == kopC_kUnset || maxThickness > 0, kopC_MaxThicknessNotPositive);
}
