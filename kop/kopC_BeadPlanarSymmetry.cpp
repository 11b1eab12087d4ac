#include "kop/kopC_BeadPlanarSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadPlanarSymmetry::kopC_BeadPlanarSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadPlanarSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadPlanarSymmetry* kopC_BeadPlanarSymmetry::Copy() const { return new kopC_BeadPlanarSymmetry(*this); }
bool kopC_BeadPlanarSymmetry::operator==(const kopC_BeadPlanarSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadPlanarSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadPlanarSymmetry&>(o); }
void kopC_BeadPlanarSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadPlanarSymmetry>(r); }
void kopC_BeadPlanarSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_BeadPlanarSymmetry>(p); }

void kopC_BeadPlanarSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
