#include "kop/kopC_CyclicSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_CyclicSymmetry::kopC_CyclicSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_CyclicSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_CyclicSymmetry* kopC_CyclicSymmetry::Copy() const { return new kopC_CyclicSymmetry(*this); }
bool kopC_CyclicSymmetry::operator==(const kopC_CyclicSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_CyclicSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_CyclicSymmetry&>(o); }
void kopC_CyclicSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_CyclicSymmetry>(r); }
void kopC_CyclicSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_CyclicSymmetry>(p); }

void kopC_CyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}
