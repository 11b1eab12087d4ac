#include "kop/kopC_StampControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_StampControl::kopC_StampControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_StampControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_StampControl* kopC_StampControl::Copy() const { return new kopC_StampControl(*this); }
bool kopC_StampControl::operator==(const kopC_StampControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_StampControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_StampControl&>(o); }
void kopC_StampControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_StampControl>(r); }
void kopC_StampControl::CowDtor(void* p) { fw_CowDtor<kopC_StampControl>(p); }

void kopC_StampControl::AssertValid() const {
  kopC_Assert(draftAngle >= 0 && draftAngle <= 20, kopC_DraftAngleOutOfRange);
}
