#include "kop/kopC_OrimStopCondition.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_OrimStopCondition::kopC_OrimStopCondition(const cls_ReadVisitor& reader) : kopC_StopCondition(reader) { fw_ReadFields(*this, reader); }
void kopC_OrimStopCondition::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_OrimStopCondition* kopC_OrimStopCondition::Copy() const { return new kopC_OrimStopCondition(*this); }
bool kopC_OrimStopCondition::operator==(const kopC_OrimStopCondition& o) const { return fw_EqualFields(*this, o); }
bool kopC_OrimStopCondition::SameAs(const kopC_StopCondition& o) const { return *this == static_cast<const kopC_OrimStopCondition&>(o); }
void kopC_OrimStopCondition::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_OrimStopCondition>(r); }
void kopC_OrimStopCondition::CowDtor(void* p) { fw_CowDtor<kopC_OrimStopCondition>(p); }

void kopC_OrimStopCondition::AssertValid() const {
  kopC_Assert(!designResponse.empty(), kopC_IdentifierMissing);
}
