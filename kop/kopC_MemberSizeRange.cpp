#include "kop/kopC_MemberSizeRange.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_MemberSizeRange::kopC_MemberSizeRange(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_MemberSizeRange::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_MemberSizeRange* kopC_MemberSizeRange::Copy() const { return new kopC_MemberSizeRange(*this); }
bool kopC_MemberSizeRange::operator==(const kopC_MemberSizeRange& o) const { return fw_EqualFields(*this, o); }
bool kopC_MemberSizeRange::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_MemberSizeRange&>(o); }
void kopC_MemberSizeRange::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_MemberSizeRange>(r); }
void kopC_MemberSizeRange::CowDtor(void* p) { fw_CowDtor<kopC_MemberSizeRange>(p); }

void kopC_MemberSizeRange::AssertValid() const {
  kopC_Assert(minWidth == kopC_kUnset || minWidth > 0, kopC_MinWidthNotPositive);
  kopC_Assert(maxWidth == kopC_kUnset || maxWidth > 0, kopC_MaxWidthNotPositive);
  kopC_Assert(memberSize == kopC_kUnset || memberSize > 0, kopC_MemberSizeNotPositive);
}
