#include "kop/kopC_FrozenArea.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_FrozenArea::kopC_FrozenArea(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_FrozenArea::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_FrozenArea* kopC_FrozenArea::Copy() const { return new kopC_FrozenArea(*this); }
bool kopC_FrozenArea::operator==(const kopC_FrozenArea& o) const { return fw_EqualFields(*this, o); }
bool kopC_FrozenArea::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_FrozenArea&>(o); }
void kopC_FrozenArea::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_FrozenArea>(r); }
void kopC_FrozenArea::CowDtor(void* p) { fw_CowDtor<kopC_FrozenArea>(p); }

void kopC_FrozenArea::AssertValid() const {
  // A frozen area holds only its region.
}
