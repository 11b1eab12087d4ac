#include "kop/kopC_BeadPointSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadPointSymmetry::kopC_BeadPointSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadPointSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadPointSymmetry* kopC_BeadPointSymmetry::Copy() const { return new kopC_BeadPointSymmetry(*this); }
bool kopC_BeadPointSymmetry::operator==(const kopC_BeadPointSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadPointSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadPointSymmetry&>(o); }
void kopC_BeadPointSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadPointSymmetry>(r); }
void kopC_BeadPointSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_BeadPointSymmetry>(p); }

void kopC_BeadPointSymmetry::AssertValid() const {
  // The region is the whole restriction.
}
