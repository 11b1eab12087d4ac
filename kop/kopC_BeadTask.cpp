#include "kop/kopC_BeadTask.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BeadTask::kopC_BeadTask(const cls_ReadVisitor& reader) : kopC_OrimTask(reader) { fw_ReadFields(*this, reader); }
void kopC_BeadTask::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kopC_BeadTask::operator==(const kopC_BeadTask& o) const { return fw_EqualFields(*this, o); }
bool kopC_BeadTask::SameAs(const kopC_BaseOptimization& o) const { return *this == static_cast<const kopC_BeadTask&>(o); }
void kopC_BeadTask::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_BeadTask>(r); }
void kopC_BeadTask::CowDtor(void* p) { fw_CowDtor<kopC_BeadTask>(p); }

void kopC_BeadTask::AssertValid() const {
  if (GetSuppressed()) return;
  // the nodal move limit reports the density move limit's message
  kopC_Assert(nodalMoveLimit > 0, kopC_DensityMoveLimitNotPositive);
  kopC_Assert(numTrackedModes >= 0, kopC_TrackedModesNegative);
  kopC_Assert(beadWidth > 0, kopC_BeadWidthNotPositive);
  // 118 and 119 speak of "greater than zero" and accept zero, as 44 and 45 do
  kopC_Assert(beadMinStress >= 0, kopC_BeadMinStressNegative);
  kopC_Assert(beadMaxMembrane >= 0, kopC_BeadMaxMembraneNegative);
  kopC_Assert(curveSmooth > 0, kopC_CurveSmoothNotPositive);
  kopC_Assert(nodeSmooth > 0, kopC_NodeSmoothNotPositive);
  kopC_Assert(beadIter >= 1, kopC_BeadIterationTooSmall);
  kopC_Assert(beadPerturbation > 0, kopC_BeadPerturbationNotPositive);
  AssertValidTask();
}
