#include "kop/kopC_MemberSizeRange.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_MemberSizeRange::kopC_MemberSizeRange(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_MemberSizeRange::AssertValid() const {
  kopC_Assert(minWidth == kopC_kUnset || minWidth > 0, kopC_MinWidthNotPositive);
  kopC_Assert(maxWidth == kopC_kUnset || maxWidth > 0, kopC_MaxWidthNotPositive);
  kopC_Assert(memberSize == kopC_kUnset || memberSize > 0, kopC_MemberSizeNotPositive);
}

template class fw_PersistentClass<kopC_MemberSizeRange, kopC_GeometricRestriction>;
