#include "kop/kopC_SizingCyclicSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingCyclicSymmetry::kopC_SizingCyclicSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingCyclicSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SizingCyclicSymmetry* kopC_SizingCyclicSymmetry::Copy() const { return new kopC_SizingCyclicSymmetry(*this); }
bool kopC_SizingCyclicSymmetry::operator==(const kopC_SizingCyclicSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingCyclicSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SizingCyclicSymmetry&>(o); }
void kopC_SizingCyclicSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingCyclicSymmetry>(r); }
void kopC_SizingCyclicSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_SizingCyclicSymmetry>(p); }

void kopC_SizingCyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}
