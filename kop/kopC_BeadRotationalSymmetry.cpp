#include "kop/kopC_BeadRotationalSymmetry.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadRotationalSymmetry::kopC_BeadRotationalSymmetry(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadRotationalSymmetry::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_BeadRotationalSymmetry* kopC_BeadRotationalSymmetry::Copy() const { return new kopC_BeadRotationalSymmetry(*this); }
bool kopC_BeadRotationalSymmetry::operator==(const kopC_BeadRotationalSymmetry& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadRotationalSymmetry::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_BeadRotationalSymmetry&>(o); }
void kopC_BeadRotationalSymmetry::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadRotationalSymmetry>(r); }
void kopC_BeadRotationalSymmetry::CowDtor(void* p) { fw_CowDtor<kopC_BeadRotationalSymmetry>(p); }

void kopC_BeadRotationalSymmetry::AssertValid() const {
  kopC_Assert(angle > 2 && angle < 360, kopC_AngleOutOfRange);
}
