#include "kop/kopC_SlideRegion.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SlideRegion::kopC_SlideRegion(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SlideRegion::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SlideRegion* kopC_SlideRegion::Copy() const { return new kopC_SlideRegion(*this); }
bool kopC_SlideRegion::operator==(const kopC_SlideRegion& o) const { return fw_EqualFields(*this, o); }
bool kopC_SlideRegion::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SlideRegion&>(o); }
void kopC_SlideRegion::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SlideRegion>(r); }
void kopC_SlideRegion::CowDtor(void* p) { fw_CowDtor<kopC_SlideRegion>(p); }

void kopC_SlideRegion::AssertValid() const {
  // A slide region holds only its region.
}
