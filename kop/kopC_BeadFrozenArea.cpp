#include "kop/kopC_BeadFrozenArea.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadFrozenArea::kopC_BeadFrozenArea(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadFrozenArea::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadFrozenArea* kopC_BeadFrozenArea::Copy() const { return new kopC_BeadFrozenArea(*this); }
bool kopC_BeadFrozenArea::operator==(const kopC_BeadFrozenArea& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadFrozenArea::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadFrozenArea&>(o); }
void kopC_BeadFrozenArea::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadFrozenArea>(r); }
void kopC_BeadFrozenArea::CowDtor(void* p) { fw_CowDtor<kopC_BeadFrozenArea>(p); }

void kopC_BeadFrozenArea::AssertValid() const {
  // The region is the whole restriction.
}
