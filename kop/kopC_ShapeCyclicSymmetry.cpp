#include "kop/kopC_ShapeCyclicSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapeCyclicSymmetry::kopC_ShapeCyclicSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapeCyclicSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapeCyclicSymmetry* kopC_ShapeCyclicSymmetry::Copy() const { return new kopC_ShapeCyclicSymmetry(*this); }
bool kopC_ShapeCyclicSymmetry::operator==(const kopC_ShapeCyclicSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapeCyclicSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapeCyclicSymmetry&>(o); }
void kopC_ShapeCyclicSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapeCyclicSymmetry>(r); }
void kopC_ShapeCyclicSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_ShapeCyclicSymmetry>(p); }

void kopC_ShapeCyclicSymmetry::AssertValid() const {
  kopC_Assert(angle >= 0 && angle < 360, kopC_CyclicAngleOutOfRange);
}
