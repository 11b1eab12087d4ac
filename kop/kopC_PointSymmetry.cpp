#include "kop/kopC_PointSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_PointSymmetry::kopC_PointSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_PointSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_PointSymmetry* kopC_PointSymmetry::Copy() const { return new kopC_PointSymmetry(*this); }
bool kopC_PointSymmetry::operator==(const kopC_PointSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_PointSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_PointSymmetry&>(o); }
void kopC_PointSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_PointSymmetry>(r); }
void kopC_PointSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_PointSymmetry>(p); }

void kopC_PointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
