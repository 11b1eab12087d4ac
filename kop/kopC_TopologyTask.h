#pragma once
// A topology optimization task: material is taken away where the design needs none.
#include <cstdint>
#include <tuple>

#include "kop/kopC_OrimTask.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_TopologyTask : public kopC_OrimTask {
 public:
  enum class StepSizeEnm : std::int32_t { DYNAMIC = 0, VERY_SMALL = 1, SMALL = 2, MODERATE = 3, MEDIUM = 4, LARGE = 5 };
  enum class DeletedVolumeTechniqueEnm : std::int32_t { OFF = 0, PERCENTAGE = 1, ABSOLUTE = 2 };
  enum class UpdateStrategyEnm : std::int32_t { NORMAL = 0, CONSERVATIVE = 1, AGGRESSIVE = 2 };
  enum class InterpolationTechniqueEnm : std::int32_t { RAMP = 0, SIMP = 1 };
  enum class SoftDeletionMethodEnm : std::int32_t { STANDARD = 0, MAX_SHEAR_STRAIN = 1, MAX_PRINCIPAL_STRAIN = 2, MIN_PRINCIPAL_STRAIN = 3, VOLUMETRIC_STRAIN_TENSION = 4, VOLUMETRIC_STRAIN_COMPRESSION = 5 };
  static constexpr omu_EnumLiteral kStepSizeLiterals[] = {{"DYNAMIC", 0}, {"VERY_SMALL", 1}, {"SMALL", 2}, {"MODERATE", 3}, {"MEDIUM", 4}, {"LARGE", 5}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kDeletedVolumeTechniqueLiterals[] = {{"OFF", 0}, {"PERCENTAGE", 1}, {"ABSOLUTE", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kUpdateStrategyLiterals[] = {{"NORMAL", 0}, {"CONSERVATIVE", 1}, {"AGGRESSIVE", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kInterpolationTechniqueLiterals[] = {{"RAMP", 0}, {"SIMP", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kSoftDeletionMethodLiterals[] = {{"STANDARD", 0}, {"MAX_SHEAR_STRAIN", 1}, {"MAX_PRINCIPAL_STRAIN", 2}, {"MIN_PRINCIPAL_STRAIN", 3}, {"VOLUMETRIC_STRAIN_TENSION", 4}, {"VOLUMETRIC_STRAIN_COMPRESSION", 5}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(StepSizeEnm) { return kStepSizeLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DeletedVolumeTechniqueEnm) { return kDeletedVolumeTechniqueLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UpdateStrategyEnm) { return kUpdateStrategyLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(InterpolationTechniqueEnm) { return kInterpolationTechniqueLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SoftDeletionMethodEnm) { return kSoftDeletionMethodLiterals; }
  using BaseClass = kopC_OrimTask;
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_TopologyTask";
  static constexpr const char* kScriptName = "TopologyTask";
  static constexpr int kVersion = 2204;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 8); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_TopologyTask;
    return std::tuple_cat(kopC_OrimTask::OrimTaskFields(), std::tuple{
        fw_Field{"freezeLoadRegions", 9, "freezeLoadRegions", &C::freezeLoadRegions},
        fw_Field{"freezeBoundaryConditionRegions", 10, "freezeBoundaryConditionRegions", &C::freezeBoundaryConditionRegions},
        fw_Field{"multipleProcessors", 11, "multipleProcessors", &C::multipleProcessors},
        fw_Field{"numIterations", 12, "numDesignCycles", &C::numIterations},
        fw_Field{"numFulfilledStopCriteria", 13, "numFulfilledStopCriteria", &C::numFulfilledStopCriteria},
        fw_Field{"stopCriteriaIteration", 14, "stopCriteriaDesignCycle", &C::stopCriteriaIteration},
        fw_Field{"numTrackedModes", 15, "numTrackedModes", &C::numTrackedModes},
        fw_Field{"firstCycleDeletedVolume", 16, "firstCycleDeletedVolume", &C::firstCycleDeletedVolume},
        fw_Field{"initialDensity", 17, "initialDensity", &C::initialDensity},
        fw_Field{"minDensity", 18, "minDensity", &C::minDensity},
        fw_Field{"maxDensity", 19, "maxDensity", &C::maxDensity},
        fw_Field{"densityMoveLimit", 20, "densityMoveLimit", &C::densityMoveLimit},
        fw_Field{"filterRadius", 21, "filterRadius", &C::filterRadius},
        fw_Field{"materialInterpolationPenalty", 22, "materialInterpolationPenalty", &C::materialInterpolationPenalty},
        fw_Field{"objectiveFunctionDeltaStopCriteria", 23, "objectiveFunctionDeltaStopCriteria", &C::objectiveFunctionDeltaStopCriteria},
        fw_Field{"elementDensityDeltaStopCriteria", 24, "elementDensityDeltaStopCriteria", &C::elementDensityDeltaStopCriteria},
        fw_Field{"softDeletionAverageEdgeLength", 25, "softDeletionRadius", &C::softDeletionAverageEdgeLength},
        fw_Field{"structuralMassDamping", 26, "structuralMassDamping", &C::structuralMassDamping},
        fw_Field{"stiffnessMassDamping", 27, "stiffnessMassDamping", &C::stiffnessMassDamping},
        fw_Field{"viscousMassDamping", 28, "viscousMassDamping", &C::viscousMassDamping},
        fw_Field{"viscousStiffnessDamping", 29, "viscousStiffnessDamping", &C::viscousStiffnessDamping},
        fw_Field{"frequencySpectrumWeight", 30, "frequencySpectrumWeight", &C::frequencySpectrumWeight},
        fw_Field{"softDeletionRegion", 31, "softDeletionRegion", &C::softDeletionRegion},
        fw_Field{"modeTrackingRegion", 32, "modeTrackingRegion", &C::modeTrackingRegion},
        fw_Field{"stepSize", 33, "stepSize", &C::stepSize},
        fw_Field{"firstCycleDeletedVolumeTechnique", 34, "firstCycleDeletedVolumeTechnique", &C::firstCycleDeletedVolumeTechnique},
        fw_Field{"densityUpdateStrategy", 35, "densityUpdateStrategy", &C::densityUpdateStrategy},
        fw_Field{"materialInterpolationTechnique", 36, "materialInterpolationTechnique", &C::materialInterpolationTechnique},
        fw_Field{"softDeletionMethod", 37, "softDeletionMethod", &C::softDeletionMethod},
        fw_Field{"softDeletionThreshold", 38, "softDeletionThreshold", &C::softDeletionThreshold},
    });
  }

  // A new topology task runs the general algorithm.
  kopC_TopologyTask();
  explicit kopC_TopologyTask(const cls_ReadVisitor& reader);
  void DBWrite(const cls_WriteVisitor& w) const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_TopologyTask& o) const;
  bool operator!=(const kopC_TopologyTask& o) const { return !(*this == o); }

  bool GetFreezeLoadRegions() const { return freezeLoadRegions; }
  void SetFreezeLoadRegions(bool v) { freezeLoadRegions = v; }
  bool GetFreezeBoundaryConditionRegions() const { return freezeBoundaryConditionRegions; }
  void SetFreezeBoundaryConditionRegions(bool v) { freezeBoundaryConditionRegions = v; }
  bool GetMultipleProcessors() const { return multipleProcessors; }
  void SetMultipleProcessors(bool v) { multipleProcessors = v; }
  std::int32_t GetNumIterations() const { return numIterations; }
  void SetNumIterations(std::int32_t v) { numIterations = v; }
  std::int32_t GetNumFulfilledStopCriteria() const { return numFulfilledStopCriteria; }
  void SetNumFulfilledStopCriteria(std::int32_t v) { numFulfilledStopCriteria = v; }
  std::int32_t GetStopCriteriaIteration() const { return stopCriteriaIteration; }
  void SetStopCriteriaIteration(std::int32_t v) { stopCriteriaIteration = v; }
  std::int32_t GetNumTrackedModes() const { return numTrackedModes; }
  void SetNumTrackedModes(std::int32_t v) { numTrackedModes = v; }
  double GetFirstCycleDeletedVolume() const { return firstCycleDeletedVolume; }
  void SetFirstCycleDeletedVolume(double v) { firstCycleDeletedVolume = v; }
  double GetInitialDensity() const { return initialDensity; }
  void SetInitialDensity(double v) { initialDensity = v; }
  double GetMinDensity() const { return minDensity; }
  void SetMinDensity(double v) { minDensity = v; }
  double GetMaxDensity() const { return maxDensity; }
  void SetMaxDensity(double v) { maxDensity = v; }
  double GetDensityMoveLimit() const { return densityMoveLimit; }
  void SetDensityMoveLimit(double v) { densityMoveLimit = v; }
  double GetFilterRadius() const { return filterRadius; }
  void SetFilterRadius(double v) { filterRadius = v; }
  double GetMaterialInterpolationPenalty() const { return materialInterpolationPenalty; }
  void SetMaterialInterpolationPenalty(double v) { materialInterpolationPenalty = v; }
  double GetObjectiveFunctionDeltaStopCriteria() const { return objectiveFunctionDeltaStopCriteria; }
  void SetObjectiveFunctionDeltaStopCriteria(double v) { objectiveFunctionDeltaStopCriteria = v; }
  double GetElementDensityDeltaStopCriteria() const { return elementDensityDeltaStopCriteria; }
  void SetElementDensityDeltaStopCriteria(double v) { elementDensityDeltaStopCriteria = v; }
  double GetSoftDeletionAverageEdgeLength() const { return softDeletionAverageEdgeLength; }
  void SetSoftDeletionAverageEdgeLength(double v) { softDeletionAverageEdgeLength = v; }
  double GetStructuralMassDamping() const { return structuralMassDamping; }
  void SetStructuralMassDamping(double v) { structuralMassDamping = v; }
  double GetStiffnessMassDamping() const { return stiffnessMassDamping; }
  void SetStiffnessMassDamping(double v) { stiffnessMassDamping = v; }
  double GetViscousMassDamping() const { return viscousMassDamping; }
  void SetViscousMassDamping(double v) { viscousMassDamping = v; }
  double GetViscousStiffnessDamping() const { return viscousStiffnessDamping; }
  void SetViscousStiffnessDamping(double v) { viscousStiffnessDamping = v; }
  double GetFrequencySpectrumWeight() const { return frequencySpectrumWeight; }
  void SetFrequencySpectrumWeight(double v) { frequencySpectrumWeight = v; }
  const rgnC_Region& GetSoftDeletionRegion() const { return softDeletionRegion; }
  void SetSoftDeletionRegion(const rgnC_Region& v) { softDeletionRegion = v; }
  const rgnC_Region& GetModeTrackingRegion() const { return modeTrackingRegion; }
  void SetModeTrackingRegion(const rgnC_Region& v) { modeTrackingRegion = v; }
  StepSizeEnm GetStepSize() const { return stepSize; }
  void SetStepSize(StepSizeEnm v) { stepSize = v; }
  DeletedVolumeTechniqueEnm GetFirstCycleDeletedVolumeTechnique() const { return firstCycleDeletedVolumeTechnique; }
  void SetFirstCycleDeletedVolumeTechnique(DeletedVolumeTechniqueEnm v) { firstCycleDeletedVolumeTechnique = v; }
  UpdateStrategyEnm GetDensityUpdateStrategy() const { return densityUpdateStrategy; }
  void SetDensityUpdateStrategy(UpdateStrategyEnm v) { densityUpdateStrategy = v; }
  InterpolationTechniqueEnm GetMaterialInterpolationTechnique() const { return materialInterpolationTechnique; }
  void SetMaterialInterpolationTechnique(InterpolationTechniqueEnm v) { materialInterpolationTechnique = v; }
  SoftDeletionMethodEnm GetSoftDeletionMethod() const { return softDeletionMethod; }
  void SetSoftDeletionMethod(SoftDeletionMethodEnm v) { softDeletionMethod = v; }
  double GetSoftDeletionThreshold() const { return softDeletionThreshold; }
  void SetSoftDeletionThreshold(double v) { softDeletionThreshold = v; }

 protected:
  bool SameAs(const kopC_BaseOptimization& o) const override;

 private:
  bool freezeLoadRegions = false;
  bool freezeBoundaryConditionRegions = false;
  bool multipleProcessors = false;
  std::int32_t numIterations = 15;
  std::int32_t numFulfilledStopCriteria = 2;
  std::int32_t stopCriteriaIteration = 4;
  std::int32_t numTrackedModes = 0;
  double firstCycleDeletedVolume = 5.0;
  double initialDensity = kopC_kUnset;
  double minDensity = 0.001;
  double maxDensity = 1.0;
  double densityMoveLimit = 0.25;
  double filterRadius = kopC_kUnset;
  double materialInterpolationPenalty = 3.0;
  double objectiveFunctionDeltaStopCriteria = 0.001;
  double elementDensityDeltaStopCriteria = 0.005;
  double softDeletionAverageEdgeLength = kopC_kUnset;
  double structuralMassDamping = kopC_kUnset;
  double stiffnessMassDamping = kopC_kUnset;
  double viscousMassDamping = kopC_kUnset;
  double viscousStiffnessDamping = kopC_kUnset;
  double frequencySpectrumWeight = 6.0;
  rgnC_Region softDeletionRegion;
  rgnC_Region modeTrackingRegion;
  StepSizeEnm stepSize = StepSizeEnm::DYNAMIC;
  DeletedVolumeTechniqueEnm firstCycleDeletedVolumeTechnique = DeletedVolumeTechniqueEnm::OFF;
  UpdateStrategyEnm densityUpdateStrategy = UpdateStrategyEnm::NORMAL;
  InterpolationTechniqueEnm materialInterpolationTechnique = InterpolationTechniqueEnm::SIMP;
  SoftDeletionMethodEnm softDeletionMethod = SoftDeletionMethodEnm::STANDARD;
  double softDeletionThreshold = 0.05;
};
