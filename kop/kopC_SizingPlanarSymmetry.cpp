#include "kop/kopC_SizingPlanarSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingPlanarSymmetry::kopC_SizingPlanarSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingPlanarSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SizingPlanarSymmetry* kopC_SizingPlanarSymmetry::Copy() const { return new kopC_SizingPlanarSymmetry(*this); }
bool kopC_SizingPlanarSymmetry::operator==(const kopC_SizingPlanarSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingPlanarSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SizingPlanarSymmetry&>(o); }
void kopC_SizingPlanarSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingPlanarSymmetry>(r); }
void kopC_SizingPlanarSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_SizingPlanarSymmetry>(p); }

void kopC_SizingPlanarSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
