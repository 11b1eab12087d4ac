#include "kop/kopC_DemoldControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_DemoldControl::kopC_DemoldControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_DemoldControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_DemoldControl* kopC_DemoldControl::Copy() const { return new kopC_DemoldControl(*this); }
bool kopC_DemoldControl::operator==(const kopC_DemoldControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_DemoldControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_DemoldControl&>(o); }
void kopC_DemoldControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_DemoldControl>(r); }
void kopC_DemoldControl::CowDtor(void* p) { fw_CowDtor<kopC_DemoldControl>(p); }

void kopC_DemoldControl::AssertValid() const {
  kopC_Assert(draftAngle >= 0 && draftAngle <= 20, kopC_DraftAngleOutOfRange);
  kopC_Assert(technique != TechniqueEnm::STAMP || draftAngle == 0, kopC_DraftAngleWithStamping);
}
