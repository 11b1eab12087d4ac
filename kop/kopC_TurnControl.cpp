#include "kop/kopC_TurnControl.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_TurnControl::kopC_TurnControl(const cls_ReadVisitor& reader) : kopC_GeometricRestriction(reader) { fw_ReadFields(*this, reader); }
void kopC_TurnControl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_TurnControl* kopC_TurnControl::Copy() const { return new kopC_TurnControl(*this); }
bool kopC_TurnControl::operator==(const kopC_TurnControl& o) const { return fw_EqualFields(*this, o); }
bool kopC_TurnControl::SameAs(const kopC_GeometricRestriction& o) const { return *this == static_cast<const kopC_TurnControl&>(o); }
void kopC_TurnControl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_TurnControl>(r); }
void kopC_TurnControl::CowDtor(void* p) { fw_CowDtor<kopC_TurnControl>(p); }

void kopC_TurnControl::AssertValid() const {
  // The region is the whole restriction.
}
