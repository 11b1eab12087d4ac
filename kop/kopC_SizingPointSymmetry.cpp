#include "kop/kopC_SizingPointSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingPointSymmetry::kopC_SizingPointSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingPointSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SizingPointSymmetry* kopC_SizingPointSymmetry::Copy() const { return new kopC_SizingPointSymmetry(*this); }
bool kopC_SizingPointSymmetry::operator==(const kopC_SizingPointSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingPointSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SizingPointSymmetry&>(o); }
void kopC_SizingPointSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingPointSymmetry>(r); }
void kopC_SizingPointSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_SizingPointSymmetry>(p); }

void kopC_SizingPointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
