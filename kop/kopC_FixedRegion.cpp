#include "kop/kopC_FixedRegion.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_FixedRegion::kopC_FixedRegion(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_FixedRegion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_FixedRegion* kopC_FixedRegion::Copy() const { return new kopC_FixedRegion(*this); }
bool kopC_FixedRegion::operator==(const kopC_FixedRegion& o) const { return fw_EqualFields(*this, o); }
bool kopC_FixedRegion::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_FixedRegion&>(o); }
void kopC_FixedRegion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_FixedRegion>(r); }
void kopC_FixedRegion::CowDtor(void* p) { fw_CowDtor<kopC_FixedRegion>(p); }

void kopC_FixedRegion::AssertValid() const {
  kopC_Assert(u1 || u2 || u3, kopC_FixedRegionDirection);
}
