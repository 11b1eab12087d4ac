#include "kop/kopC_BeadFixedRegion.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadFixedRegion::kopC_BeadFixedRegion(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadFixedRegion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadFixedRegion* kopC_BeadFixedRegion::Copy() const { return new kopC_BeadFixedRegion(*this); }
bool kopC_BeadFixedRegion::operator==(const kopC_BeadFixedRegion& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadFixedRegion::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadFixedRegion&>(o); }
void kopC_BeadFixedRegion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadFixedRegion>(r); }
void kopC_BeadFixedRegion::CowDtor(void* p) { fw_CowDtor<kopC_BeadFixedRegion>(p); }

void kopC_BeadFixedRegion::AssertValid() const {
  kopC_Assert(u1 || u2 || u3, kopC_FixedRegionDirection);
}
