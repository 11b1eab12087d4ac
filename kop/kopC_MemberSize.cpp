#include "kop/kopC_MemberSize.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_MemberSize::kopC_MemberSize(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_MemberSize::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_MemberSize* kopC_MemberSize::Copy() const { return new kopC_MemberSize(*this); }
bool kopC_MemberSize::operator==(const kopC_MemberSize& o) const { return fw_EqualFields(*this, o); }
bool kopC_MemberSize::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_MemberSize&>(o); }
void kopC_MemberSize::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_MemberSize>(r); }
void kopC_MemberSize::CowDtor(void* p) { fw_CowDtor<kopC_MemberSize>(p); }

void kopC_MemberSize::AssertValid() const {
  kopC_Assert(minThickness == kopC_kUnset || minThickness > 0, kopC_MinThicknessNotPositive);
  kopC_Assert(maxThickness == kopC_kUnset || maxThickness > 0, kopC_MaxThicknessNotPositive);
  kopC_Assert(minThickness == kopC_kUnset || maxThickness == kopC_kUnset || maxThickness >= minThickness,
              kopC_MaxThicknessBelowMin);
}
