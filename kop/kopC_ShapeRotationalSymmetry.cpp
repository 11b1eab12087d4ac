#include "kop/kopC_ShapeRotationalSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapeRotationalSymmetry::kopC_ShapeRotationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapeRotationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapeRotationalSymmetry* kopC_ShapeRotationalSymmetry::Copy() const { return new kopC_ShapeRotationalSymmetry(*this); }
bool kopC_ShapeRotationalSymmetry::operator==(const kopC_ShapeRotationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapeRotationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapeRotationalSymmetry&>(o); }
void kopC_ShapeRotationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapeRotationalSymmetry>(r); }
void kopC_ShapeRotationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_ShapeRotationalSymmetry>(p); }

void kopC_ShapeRotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}
