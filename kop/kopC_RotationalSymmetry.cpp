#include "kop/kopC_RotationalSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_RotationalSymmetry::kopC_RotationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_RotationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_RotationalSymmetry* kopC_RotationalSymmetry::Copy() const { return new kopC_RotationalSymmetry(*this); }
bool kopC_RotationalSymmetry::operator==(const kopC_RotationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_RotationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_RotationalSymmetry&>(o); }
void kopC_RotationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_RotationalSymmetry>(r); }
void kopC_RotationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_RotationalSymmetry>(p); }

void kopC_RotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}
