#include "kop/kopC_ShapePointSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapePointSymmetry::kopC_ShapePointSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapePointSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapePointSymmetry* kopC_ShapePointSymmetry::Copy() const { return new kopC_ShapePointSymmetry(*this); }
bool kopC_ShapePointSymmetry::operator==(const kopC_ShapePointSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapePointSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapePointSymmetry&>(o); }
void kopC_ShapePointSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapePointSymmetry>(r); }
void kopC_ShapePointSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_ShapePointSymmetry>(p); }

void kopC_ShapePointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
