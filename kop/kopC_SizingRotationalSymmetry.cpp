#include "kop/kopC_SizingRotationalSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingRotationalSymmetry::kopC_SizingRotationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingRotationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SizingRotationalSymmetry* kopC_SizingRotationalSymmetry::Copy() const { return new kopC_SizingRotationalSymmetry(*this); }
bool kopC_SizingRotationalSymmetry::operator==(const kopC_SizingRotationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingRotationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_SizingRotationalSymmetry&>(o); }
void kopC_SizingRotationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingRotationalSymmetry>(r); }
void kopC_SizingRotationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_SizingRotationalSymmetry>(p); }

void kopC_SizingRotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}
