#include "kop/kopC_SizingFrozenArea.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingFrozenArea::kopC_SizingFrozenArea(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingFrozenArea::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SizingFrozenArea* kopC_SizingFrozenArea::Copy() const { return new kopC_SizingFrozenArea(*this); }
bool kopC_SizingFrozenArea::operator==(const kopC_SizingFrozenArea& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingFrozenArea::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SizingFrozenArea&>(o); }
void kopC_SizingFrozenArea::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingFrozenArea>(r); }
void kopC_SizingFrozenArea::CowDtor(void* p) { fw_CowDtor<kopC_SizingFrozenArea>(p); }

void kopC_SizingFrozenArea::AssertValid() const {
  // The region is the whole restriction.
}
