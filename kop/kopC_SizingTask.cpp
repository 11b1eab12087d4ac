#include "kop/kopC_SizingTask.h"

#include <string_view>

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SizingTask::kopC_SizingTask(const cls_ReadVisitor& reader) : kopC_OrimTask(reader) { fw_ReadFields(*this, reader); }
void kopC_SizingTask::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kopC_SizingTask::operator==(const kopC_SizingTask& o) const { return fw_EqualFields(*this, o); }
bool kopC_SizingTask::SameAs(const kopC_BaseOptimization& o) const { return *this == static_cast<const kopC_SizingTask&>(o); }
void kopC_SizingTask::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SizingTask>(r); }
void kopC_SizingTask::CowDtor(void* p) { fw_CowDtor<kopC_SizingTask>(p); }

void kopC_SizingTask::AssertValid() const {
  if (GetSuppressed()) return;
  kopC_Assert(thicknessMoveLimit > 0, kopC_ThicknessMoveLimitNotPositive);
  kopC_Assert(filterRadius >= 0, kopC_FilterRadiusNegative);
  kopC_Assert(numFulfilledStopCriteria == 1 || numFulfilledStopCriteria == 2, kopC_FulfilledCriteriaCount);
  kopC_Assert(objectiveFunctionDeltaStopCriteria >= 0, kopC_ObjectiveDeltaNegative);
  kopC_Assert(elementThicknessDeltaStopCriteria >= 0, kopC_ThicknessDeltaNegative);
  kopC_Assert(stopCriteriaIteration >= 3, kopC_CriteriaDesignCycleTooSmall);
  kopC_Assert(numTrackedModes >= 0, kopC_TrackedModesNegative);
  AssertValidTask();
}

std::vector<cls_ScriptField> kopC_SizingTask::ScriptFace(std::vector<cls_ScriptField> stored) {
  std::vector<cls_ScriptField> out;
  for (const cls_ScriptField& f : stored) {
    out.push_back(f);
    if (std::string_view(f.persistentName) == "stopCriteriaIteration") {
      cls_ScriptField alias = f;
      alias.scriptName = "stopCriteriaIteration";
      out.push_back(alias);
    }
  }
  return out;
}
