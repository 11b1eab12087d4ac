#include "kop/kopC_BeadCyclicSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadCyclicSymmetry::kopC_BeadCyclicSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadCyclicSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadCyclicSymmetry* kopC_BeadCyclicSymmetry::Copy() const { return new kopC_BeadCyclicSymmetry(*this); }
bool kopC_BeadCyclicSymmetry::operator==(const kopC_BeadCyclicSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadCyclicSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadCyclicSymmetry&>(o); }
void kopC_BeadCyclicSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadCyclicSymmetry>(r); }
void kopC_BeadCyclicSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_BeadCyclicSymmetry>(p); }

void kopC_BeadCyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}
