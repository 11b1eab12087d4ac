#include "kop/kopC_ShapePlanarSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ShapePlanarSymmetry::kopC_ShapePlanarSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_ShapePlanarSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_ShapePlanarSymmetry* kopC_ShapePlanarSymmetry::Copy() const { return new kopC_ShapePlanarSymmetry(*this); }
bool kopC_ShapePlanarSymmetry::operator==(const kopC_ShapePlanarSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_ShapePlanarSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_ShapePlanarSymmetry&>(o); }
void kopC_ShapePlanarSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_ShapePlanarSymmetry>(r); }
void kopC_ShapePlanarSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_ShapePlanarSymmetry>(p); }

void kopC_ShapePlanarSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
