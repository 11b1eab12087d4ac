#include "kop/kopC_LocalStopCondition.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_LocalStopCondition::kopC_LocalStopCondition(const cls_ReadVisitor& reader) : kopC_StopCondition(reader) { fw_ReadFields(*this, reader); }
void kopC_LocalStopCondition::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_LocalStopCondition* kopC_LocalStopCondition::Copy() const { return new kopC_LocalStopCondition(*this); }
bool kopC_LocalStopCondition::operator==(const kopC_LocalStopCondition& o) const { return fw_EqualFields(*this, o); }
bool kopC_LocalStopCondition::SameAs(const kopC_StopCondition& o) const { return *this == static_cast<const kopC_LocalStopCondition&>(o); }
void kopC_LocalStopCondition::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_LocalStopCondition>(r); }
void kopC_LocalStopCondition::CowDtor(void* p) { fw_CowDtor<kopC_LocalStopCondition>(p); }

void kopC_LocalStopCondition::AssertValid() const {
  kopC_Assert(!identifier.empty(), kopC_IdentifierMissing);
  kopC_Assert(referenceFactor != kopC_kUnset, kopC_ReferenceFactorMissing);
}
