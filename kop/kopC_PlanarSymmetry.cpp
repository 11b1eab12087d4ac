#include "kop/kopC_PlanarSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_PlanarSymmetry::kopC_PlanarSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_PlanarSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_PlanarSymmetry* kopC_PlanarSymmetry::Copy() const { return new kopC_PlanarSymmetry(*this); }
bool kopC_PlanarSymmetry::operator==(const kopC_PlanarSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_PlanarSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_PlanarSymmetry&>(o); }
void kopC_PlanarSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_PlanarSymmetry>(r); }
void kopC_PlanarSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_PlanarSymmetry>(p); }

void kopC_PlanarSymmetry::AssertValid() const {
  // Any axis of the plane is allowed.
}
