#include "kop/kopC_TopologyTask.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_TopologyTask::kopC_TopologyTask() { SetAlgorithm(kopC_AlgorithmEnm::GENERAL_OPTIMIZATION); }
kopC_TopologyTask::kopC_TopologyTask(const cls_ReadVisitor& reader) : kopC_OrimTask(reader) { fw_ReadFields(*this, reader); }
void kopC_TopologyTask::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kopC_TopologyTask::operator==(const kopC_TopologyTask& o) const { return fw_EqualFields(*this, o); }
bool kopC_TopologyTask::SameAs(const kopC_BaseOptimization& o) const { return *this == static_cast<const kopC_TopologyTask&>(o); }
void kopC_TopologyTask::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_TopologyTask>(r); }
void kopC_TopologyTask::CowDtor(void* p) { fw_CowDtor<kopC_TopologyTask>(p); }

void kopC_TopologyTask::AssertValid() const {
  if (GetSuppressed()) return;
  kopC_Assert(minDensity > 0, kopC_MinDensityNotPositive);
  kopC_Assert(maxDensity > 0, kopC_MaxDensityNotPositive);
  kopC_Assert(maxDensity <= 1, kopC_MaxDensityAboveOne);
  kopC_Assert(densityMoveLimit > 0, kopC_DensityMoveLimitNotPositive);
  kopC_Assert(minDensity <= maxDensity, kopC_MinDensityAboveMax);
  if (initialDensity != kopC_kUnset) {
    kopC_Assert(initialDensity > 0, kopC_InitialDensityNotPositive);
    kopC_Assert(initialDensity >= minDensity && initialDensity <= maxDensity, kopC_InitialDensityOutsideBounds);
  }
  // The messages of 44 and 45 speak of "greater than zero"; zero is accepted all the same.
  kopC_Assert(filterRadius >= 0, kopC_FilterRadiusNegative);
  kopC_Assert(materialInterpolationPenalty >= 0, kopC_PenaltyNegative);
  kopC_Assert(numFulfilledStopCriteria == 1 || numFulfilledStopCriteria == 2, kopC_FulfilledCriteriaCount);
  kopC_Assert(objectiveFunctionDeltaStopCriteria >= 0, kopC_ObjectiveDeltaNegative);
  kopC_Assert(elementDensityDeltaStopCriteria >= 0, kopC_DensityDeltaNegative);
  kopC_Assert(stopCriteriaIteration > 2, kopC_CriteriaDesignCycleTooSmall);
  kopC_Assert(softDeletionAverageEdgeLength >= 0, kopC_SoftDeletionRadiusNegative);
  kopC_Assert(!multipleProcessors || IsGeneral(), kopC_MultipleProcessorsNotGeneral);
  kopC_Assert(numIterations >= 10, kopC_DesignCyclesTooFew);
  if (stepSize != StepSizeEnm::DYNAMIC)
    kopC_Assert(firstCycleDeletedVolumeTechnique != DeletedVolumeTechniqueEnm::OFF, kopC_DeletedVolumeRequired);
  else
    kopC_Assert(firstCycleDeletedVolumeTechnique == DeletedVolumeTechniqueEnm::OFF, kopC_DynamicStepWithDeletedVolume);
  kopC_Assert(numTrackedModes >= 0, kopC_TrackedModesNegative);
  kopC_Assert(frequencySpectrumWeight >= 0, kopC_SpectrumWeightNegative);
  switch (static_cast<int>(softDeletionMethod)) {
    case 0: case 1:
      kopC_Assert(softDeletionAverageEdgeLength >= 0, kopC_SoftDeletionRadiusNegative);
      kopC_Assert(softDeletionThreshold >= 0, kopC_SoftDeletionThresholdNegative);
      break;
    case 2: case 4:
      kopC_Assert(softDeletionThreshold >= 0, kopC_SoftDeletionThresholdNegative);
      break;
    case 3: case 5:
      // compressive measures: the threshold is a negative strain
      kopC_Assert(softDeletionThreshold < 0, kopC_SoftDeletionThresholdNotNegative);
      break;
    default:
      break;
  }
  AssertValidTask();
}
