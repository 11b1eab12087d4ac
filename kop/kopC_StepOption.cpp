#include "kop/kopC_StepOption.h"

#include <string_view>

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_Enums.h"
#include "kop/kopC_assert.h"

kopC_StepOption::kopC_StepOption(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

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

namespace {
bool kopSO_LooksLikeStepSet(std::string_view text) { return text.substr(0, 4) == "ALL_"; }
}  // namespace

void kopC_StepOption::SetMultipleStep(const cow_String& v) {
  if (kopSO_LooksLikeStepSet(v.view())) (void)omu_PrimEnum<kopC_StepSetEnm, 1>(v);  // refuses an unknown set
  multipleStep = v;
}

bool kopC_StepOption::IsStepSet() const { return kopSO_LooksLikeStepSet(multipleStep.view()); }

std::vector<cls_ScriptField> kopC_StepOption::ScriptFace(std::vector<cls_ScriptField> stored) {
  for (cls_ScriptField& f : stored) {
    if (std::string_view(f.persistentName) != "multipleStep") continue;
    f.literals = kStepSetLiterals;
    f.set = [](void* p, const cls_Value& v) {
      const cow_String* text = std::get_if<cow_String>(&v);
      if (!text) fw_RefuseKind("multipleStep", v, "a string");
      static_cast<kopC_StepOption*>(p)->SetMultipleStep(*text);
    };
  }
  return stored;
}

template class fw_PersistentClass<kopC_StepOption, mem_Allocated>;
