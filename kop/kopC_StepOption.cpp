#include "kop/kopC_StepOption.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_StepOption::kopC_StepOption(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void kopC_StepOption::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_StepOption* kopC_StepOption::Copy() const { return new kopC_StepOption(*this); }
bool kopC_StepOption::operator==(const kopC_StepOption& o) const { return fw_EqualFields(*this, o); }
void kopC_StepOption::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_StepOption>(r); }
void kopC_StepOption::CowDtor(void* p) { fw_CowDtor<kopC_StepOption>(p); }

// A step option names its step (a step, a step set or "ALL"); the mode range counts only when not
// every mode is used and no single modes are listed.
void kopC_StepOption::AssertValid() const {
  kopC_Assert(!multipleStep.empty(), kopC_StepMissing);
  kopC_Assert(!(multipleStep == "ALL" && !loadCase.empty()), kopC_AllStepWithLoadCases);
  if (!useAllModes && modes.empty()) {
    kopC_Assert(lowerMode > 0, kopC_LowerModeNotPositive);
    kopC_Assert(upperMode > 0, kopC_UpperModeNotPositive);
    kopC_Assert(lowerMode <= upperMode, kopC_LowerModeAboveUpper);
  }
}
