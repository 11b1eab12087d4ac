#pragma once
// A shape optimization task: surface nodes of the design region move to improve the design.
#include <cstdint>
#include <tuple>

#include "kop/kopC_OrimTask.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class kopC_ShapeTask : public kopC_OrimTask {
 public:
  enum class MidsideInterpolationEnm : std::int32_t { POSITIONS = 0, OPTIMIZATION_DISPLACEMENT = 1 };
  enum class UpdateBasisEnm : std::int32_t { EVERY_DESIGN_CYCLE = 0, CONSTANT = 1 };
  enum class StepSizeControlEnm : std::int32_t { MINIMUM = 0, AVERAGE = 1 };
  enum class SmoothingRegionMethodEnm : std::int32_t { TASK_REGION_LAYERS = 0, REGION = 1, NUMBER_OF_LAYERS = 2 };
  enum class SmoothingStrategyEnm : std::int32_t { NONE = 0, CONSTRAINED_LAPLACIAN = 1, LOCAL_GRADIENT = 2 };
  enum class NodeLayersApproachEnm : std::int32_t { NUMBER_OF_LAYERS = 0, FEATURE_RECOGNITION = 1 };
  enum class UpdateStrategyEnm : std::int32_t { NORMAL = 0, CONSERVATIVE = 1, AGGRESSIVE = 2 };
  enum class EvaluationFrequencyEnm : std::int32_t { EVERY_CYCLE = 0, LOW = 1, MEDIUM = 2, HIGH = 3 };
  enum class MeshQualityEnm : std::int32_t { NONE = 0, LOW = 1, MEDIUM = 2, HIGH = 3 };
  enum class DurabilitySolverEnm : std::int32_t { FE_SAFE = 0 };
  static constexpr omu_EnumLiteral kMidsideInterpolationLiterals[] = {{"POSITIONS", 0}, {"OPTIMIZATION_DISPLACEMENT", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kUpdateBasisLiterals[] = {{"EVERY_DESIGN_CYCLE", 0}, {"CONSTANT", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kStepSizeControlLiterals[] = {{"MINIMUM", 0}, {"AVERAGE", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kSmoothingRegionMethodLiterals[] = {{"TASK_REGION_LAYERS", 0}, {"REGION", 1}, {"NUMBER_OF_LAYERS", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kSmoothingStrategyLiterals[] = {{"NONE", 0}, {"CONSTRAINED_LAPLACIAN", 1}, {"LOCAL_GRADIENT", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kNodeLayersApproachLiterals[] = {{"NUMBER_OF_LAYERS", 0}, {"FEATURE_RECOGNITION", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kUpdateStrategyLiterals[] = {{"NORMAL", 0}, {"CONSERVATIVE", 1}, {"AGGRESSIVE", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kEvaluationFrequencyLiterals[] = {{"EVERY_CYCLE", 0}, {"LOW", 1}, {"MEDIUM", 2}, {"HIGH", 3}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kMeshQualityLiterals[] = {{"NONE", 0}, {"LOW", 1}, {"MEDIUM", 2}, {"HIGH", 3}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kDurabilitySolverLiterals[] = {{"FE_SAFE", 0}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MidsideInterpolationEnm) { return kMidsideInterpolationLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UpdateBasisEnm) { return kUpdateBasisLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(StepSizeControlEnm) { return kStepSizeControlLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SmoothingRegionMethodEnm) { return kSmoothingRegionMethodLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SmoothingStrategyEnm) { return kSmoothingStrategyLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(NodeLayersApproachEnm) { return kNodeLayersApproachLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UpdateStrategyEnm) { return kUpdateStrategyLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(EvaluationFrequencyEnm) { return kEvaluationFrequencyLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MeshQualityEnm) { return kMeshQualityLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DurabilitySolverEnm) { return kDurabilitySolverLiterals; }
  using BaseClass = kopC_OrimTask;
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_ShapeTask";
  static constexpr const char* kScriptName = "ShapeTask";
  static constexpr int kVersion = 2204;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 9); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_ShapeTask;
    return std::tuple_cat(kopC_OrimTask::OrimTaskFields(), std::tuple{
        fw_Field{"growthScaleFactor", 9, "growthScaleFactor", &C::growthScaleFactor},
        fw_Field{"shrinkScaleFactor", 10, "shrinkScaleFactor", &C::shrinkScaleFactor},
        fw_Field{"curvatureSmoothingEdgeLength", 11, "curvatureSmoothingEdgeLength", &C::curvatureSmoothingEdgeLength},
        fw_Field{"filterMaxRadius", 12, "filterMaxRadius", &C::filterMaxRadius},
        fw_Field{"filterRadiusReduction", 13, "filterRadiusReduction", &C::filterRadiusReduction},
        fw_Field{"filterExponent", 14, "filterExponent", &C::filterExponent},
        fw_Field{"tolerance", 15, "tolerance", &C::tolerance},
        fw_Field{"midsideInterpolation", 16, "midsideInterpolation", &C::midsideInterpolation},
        fw_Field{"updateShapeBasisVectors", 17, "updateShapeBasisVectors", &C::updateShapeBasisVectors},
        fw_Field{"absoluteStepSizeControl", 18, "absoluteStepSizeControl", &C::absoluteStepSizeControl},
        fw_Field{"equalityConstraintTolerance", 19, "equalityConstraintTolerance", &C::equalityConstraintTolerance},
        fw_Field{"meshSmoothingRegionMethod", 20, "meshSmoothingRegionMethod", &C::meshSmoothingRegionMethod},
        fw_Field{"meshSmoothingStrategy", 21, "meshSmoothingStrategy", &C::meshSmoothingStrategy},
        fw_Field{"nodeLayersApproach", 22, "nodeLayersApproach", &C::nodeLayersApproach},
        fw_Field{"constrainedLaplacianConvergenceLevel", 23, "constrainedLaplacianConvergenceLevel", &C::constrainedLaplacianConvergenceLevel},
        fw_Field{"geometricRestrictionEvaluationFrequency", 24, "geometricRestrictionEvaluationFrequency", &C::geometricRestrictionEvaluationFrequency},
        fw_Field{"targetMeshQuality", 25, "targetMeshQuality", &C::targetMeshQuality},
        fw_Field{"smoothingRegion", 26, "smoothingRegion", &C::smoothingRegion},
        fw_Field{"layerReferenceRegion", 27, "layerReferenceRegion", &C::layerReferenceRegion},
        fw_Field{"reportPoorQualityElements", 28, "reportPoorQualityElements", &C::reportPoorQualityElements},
        fw_Field{"reportQualityViolation", 29, "reportQualityViolation", &C::reportQualityViolation},
        fw_Field{"haltUponViolation", 30, "haltUponViolation", &C::haltUponViolation},
        fw_Field{"numFreeNodeLayers", 31, "numFreeNodeLayers", &C::numFreeNodeLayers},
        fw_Field{"numSmoothedElementLayers", 32, "numSmoothedElementLayers", &C::numSmoothedElementLayers},
        fw_Field{"useFixedNodeLayers", 33, "useFixedNodeLayers", &C::useFixedNodeLayers},
        fw_Field{"numFixedNodeLayers", 34, "numFixedNodeLayers", &C::numFixedNodeLayers},
        fw_Field{"featureRecognitionAngle", 35, "featureRecognitionAngle", &C::featureRecognitionAngle},
        fw_Field{"triMinAngle", 36, "triMinAngle", &C::triMinAngle},
        fw_Field{"triMaxAngle", 37, "triMaxAngle", &C::triMaxAngle},
        fw_Field{"quadMinAngle", 38, "quadMinAngle", &C::quadMinAngle},
        fw_Field{"quadMaxAngle", 39, "quadMaxAngle", &C::quadMaxAngle},
        fw_Field{"quadTaper", 40, "quadTaper", &C::quadTaper},
        fw_Field{"quadSkew", 41, "quadSkew", &C::quadSkew},
        fw_Field{"tetMinAspect", 42, "tetMinAspect", &C::tetMinAspect},
        fw_Field{"tetMaxAspect", 43, "tetMaxAspect", &C::tetMaxAspect},
        fw_Field{"tetAspectRatio", 44, "tetAspectRatio", &C::tetAspectRatio},
        fw_Field{"tetSkew", 45, "tetSkew", &C::tetSkew},
        fw_Field{"freezeBoundaryConditionRegions", 46, "freezeBoundaryConditionRegions", &C::freezeBoundaryConditionRegions},
        fw_Field{"presumeFeasibleBCRegionAtStart", 47, "presumeFeasibleBCRegionAtStart", &C::presumeFeasibleBCRegionAtStart},
        fw_Field{"numTrackedModes", 48, "numTrackedModes", &C::numTrackedModes},
        fw_Field{"modeTrackingRegion", 49, "modeTrackingRegion", &C::modeTrackingRegion},
        fw_Field{"activateDurability", 50, "activateDurability", &C::activateDurability},
        fw_Field{"durabilityInputfile", 51, "durabilityInputfile", &C::durabilityInputfile},
        fw_Field{"additionalDurabilityFiles", 52, "additionalDurabilityFiles", &C::additionalDurabilityFiles},
        fw_Field{"durabilitySolver", 53, "durabilitySolver", &C::durabilitySolver},
    });
  }

  kopC_ShapeTask() = default;
  explicit kopC_ShapeTask(const cls_ReadVisitor& reader);
  void DBWrite(const cls_WriteVisitor& w) const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_ShapeTask& o) const;
  bool operator!=(const kopC_ShapeTask& o) const { return !(*this == o); }

  double GetGrowthScaleFactor() const { return growthScaleFactor; }
  void SetGrowthScaleFactor(double v) { growthScaleFactor = v; }
  double GetShrinkScaleFactor() const { return shrinkScaleFactor; }
  void SetShrinkScaleFactor(double v) { shrinkScaleFactor = v; }
  double GetCurvatureSmoothingEdgeLength() const { return curvatureSmoothingEdgeLength; }
  void SetCurvatureSmoothingEdgeLength(double v) { curvatureSmoothingEdgeLength = v; }
  double GetFilterMaxRadius() const { return filterMaxRadius; }
  void SetFilterMaxRadius(double v) { filterMaxRadius = v; }
  double GetFilterRadiusReduction() const { return filterRadiusReduction; }
  void SetFilterRadiusReduction(double v) { filterRadiusReduction = v; }
  double GetFilterExponent() const { return filterExponent; }
  void SetFilterExponent(double v) { filterExponent = v; }
  double GetTolerance() const { return tolerance; }
  void SetTolerance(double v) { tolerance = v; }
  MidsideInterpolationEnm GetMidsideInterpolation() const { return midsideInterpolation; }
  void SetMidsideInterpolation(MidsideInterpolationEnm v) { midsideInterpolation = v; }
  UpdateBasisEnm GetUpdateShapeBasisVectors() const { return updateShapeBasisVectors; }
  void SetUpdateShapeBasisVectors(UpdateBasisEnm v) { updateShapeBasisVectors = v; }
  StepSizeControlEnm GetAbsoluteStepSizeControl() const { return absoluteStepSizeControl; }
  void SetAbsoluteStepSizeControl(StepSizeControlEnm v) { absoluteStepSizeControl = v; }
  double GetEqualityConstraintTolerance() const { return equalityConstraintTolerance; }
  void SetEqualityConstraintTolerance(double v) { equalityConstraintTolerance = v; }
  SmoothingRegionMethodEnm GetMeshSmoothingRegionMethod() const { return meshSmoothingRegionMethod; }
  void SetMeshSmoothingRegionMethod(SmoothingRegionMethodEnm v) { meshSmoothingRegionMethod = v; }
  SmoothingStrategyEnm GetMeshSmoothingStrategy() const { return meshSmoothingStrategy; }
  void SetMeshSmoothingStrategy(SmoothingStrategyEnm v) { meshSmoothingStrategy = v; }
  NodeLayersApproachEnm GetNodeLayersApproach() const { return nodeLayersApproach; }
  void SetNodeLayersApproach(NodeLayersApproachEnm v) { nodeLayersApproach = v; }
  UpdateStrategyEnm GetConstrainedLaplacianConvergenceLevel() const { return constrainedLaplacianConvergenceLevel; }
  void SetConstrainedLaplacianConvergenceLevel(UpdateStrategyEnm v) { constrainedLaplacianConvergenceLevel = v; }
  EvaluationFrequencyEnm GetGeometricRestrictionEvaluationFrequency() const { return geometricRestrictionEvaluationFrequency; }
  void SetGeometricRestrictionEvaluationFrequency(EvaluationFrequencyEnm v) { geometricRestrictionEvaluationFrequency = v; }
  MeshQualityEnm GetTargetMeshQuality() const { return targetMeshQuality; }
  void SetTargetMeshQuality(MeshQualityEnm v) { targetMeshQuality = v; }
  const rgnC_Region& GetSmoothingRegion() const { return smoothingRegion; }
  void SetSmoothingRegion(const rgnC_Region& v) { smoothingRegion = v; }
  const rgnC_Region& GetLayerReferenceRegion() const { return layerReferenceRegion; }
  void SetLayerReferenceRegion(const rgnC_Region& v) { layerReferenceRegion = v; }
  bool GetReportPoorQualityElements() const { return reportPoorQualityElements; }
  void SetReportPoorQualityElements(bool v) { reportPoorQualityElements = v; }
  bool GetReportQualityViolation() const { return reportQualityViolation; }
  void SetReportQualityViolation(bool v) { reportQualityViolation = v; }
  bool GetHaltUponViolation() const { return haltUponViolation; }
  void SetHaltUponViolation(bool v) { haltUponViolation = v; }
  std::int32_t GetNumFreeNodeLayers() const { return numFreeNodeLayers; }
  void SetNumFreeNodeLayers(std::int32_t v) { numFreeNodeLayers = v; }
  std::int32_t GetNumSmoothedElementLayers() const { return numSmoothedElementLayers; }
  void SetNumSmoothedElementLayers(std::int32_t v) { numSmoothedElementLayers = v; }
  bool GetUseFixedNodeLayers() const { return useFixedNodeLayers; }
  void SetUseFixedNodeLayers(bool v) { useFixedNodeLayers = v; }
  std::int32_t GetNumFixedNodeLayers() const { return numFixedNodeLayers; }
  void SetNumFixedNodeLayers(std::int32_t v) { numFixedNodeLayers = v; }
  double GetFeatureRecognitionAngle() const { return featureRecognitionAngle; }
  void SetFeatureRecognitionAngle(double v) { featureRecognitionAngle = v; }
  double GetTriMinAngle() const { return triMinAngle; }
  void SetTriMinAngle(double v) { triMinAngle = v; }
  double GetTriMaxAngle() const { return triMaxAngle; }
  void SetTriMaxAngle(double v) { triMaxAngle = v; }
  double GetQuadMinAngle() const { return quadMinAngle; }
  void SetQuadMinAngle(double v) { quadMinAngle = v; }
  double GetQuadMaxAngle() const { return quadMaxAngle; }
  void SetQuadMaxAngle(double v) { quadMaxAngle = v; }
  double GetQuadTaper() const { return quadTaper; }
  void SetQuadTaper(double v) { quadTaper = v; }
  double GetQuadSkew() const { return quadSkew; }
  void SetQuadSkew(double v) { quadSkew = v; }
  double GetTetMinAspect() const { return tetMinAspect; }
  void SetTetMinAspect(double v) { tetMinAspect = v; }
  double GetTetMaxAspect() const { return tetMaxAspect; }
  void SetTetMaxAspect(double v) { tetMaxAspect = v; }
  double GetTetAspectRatio() const { return tetAspectRatio; }
  void SetTetAspectRatio(double v) { tetAspectRatio = v; }
  double GetTetSkew() const { return tetSkew; }
  void SetTetSkew(double v) { tetSkew = v; }
  bool GetFreezeBoundaryConditionRegions() const { return freezeBoundaryConditionRegions; }
  void SetFreezeBoundaryConditionRegions(bool v) { freezeBoundaryConditionRegions = v; }
  bool GetPresumeFeasibleBCRegionAtStart() const { return presumeFeasibleBCRegionAtStart; }
  void SetPresumeFeasibleBCRegionAtStart(bool v) { presumeFeasibleBCRegionAtStart = v; }
  std::int32_t GetNumTrackedModes() const { return numTrackedModes; }
  void SetNumTrackedModes(std::int32_t v) { numTrackedModes = v; }
  const rgnC_Region& GetModeTrackingRegion() const { return modeTrackingRegion; }
  void SetModeTrackingRegion(const rgnC_Region& v) { modeTrackingRegion = v; }
  bool GetActivateDurability() const { return activateDurability; }
  void SetActivateDurability(bool v) { activateDurability = v; }
  const cow_String& GetDurabilityInputfile() const { return durabilityInputfile; }
  void SetDurabilityInputfile(const cow_String& v) { durabilityInputfile = v; }
  const cow_List<cow_String>& GetAdditionalDurabilityFiles() const { return additionalDurabilityFiles; }
  void SetAdditionalDurabilityFiles(const cow_List<cow_String>& v) { additionalDurabilityFiles = v; }
  DurabilitySolverEnm GetDurabilitySolver() const { return durabilitySolver; }
  void SetDurabilitySolver(DurabilitySolverEnm v) { durabilitySolver = v; }

 protected:
  bool SameAs(const kopC_BaseOptimization& o) const override;

 private:
  double growthScaleFactor = 1.0;
  double shrinkScaleFactor = 1.0;
  double curvatureSmoothingEdgeLength = kopC_kUnset;
  double filterMaxRadius = kopC_kUnset;
  double filterRadiusReduction = kopC_kUnset;
  double filterExponent = kopC_kUnset;
  double tolerance = 0.01;
  MidsideInterpolationEnm midsideInterpolation = MidsideInterpolationEnm::POSITIONS;
  UpdateBasisEnm updateShapeBasisVectors = UpdateBasisEnm::EVERY_DESIGN_CYCLE;
  StepSizeControlEnm absoluteStepSizeControl = StepSizeControlEnm::MINIMUM;
  double equalityConstraintTolerance = kopC_kUnset;
  SmoothingRegionMethodEnm meshSmoothingRegionMethod = SmoothingRegionMethodEnm::TASK_REGION_LAYERS;
  SmoothingStrategyEnm meshSmoothingStrategy = SmoothingStrategyEnm::CONSTRAINED_LAPLACIAN;
  NodeLayersApproachEnm nodeLayersApproach = NodeLayersApproachEnm::NUMBER_OF_LAYERS;
  UpdateStrategyEnm constrainedLaplacianConvergenceLevel = UpdateStrategyEnm::NORMAL;
  EvaluationFrequencyEnm geometricRestrictionEvaluationFrequency = EvaluationFrequencyEnm::LOW;
  MeshQualityEnm targetMeshQuality = MeshQualityEnm::NONE;
  rgnC_Region smoothingRegion;
  rgnC_Region layerReferenceRegion;
  bool reportPoorQualityElements = false;
  bool reportQualityViolation = false;
  bool haltUponViolation = false;
  std::int32_t numFreeNodeLayers = 0;
  std::int32_t numSmoothedElementLayers = 5;
  bool useFixedNodeLayers = false;
  std::int32_t numFixedNodeLayers = 0;
  double featureRecognitionAngle = 30.0;
  double triMinAngle = 20.0;
  double triMaxAngle = 120.0;
  double quadMinAngle = 45.0;
  double quadMaxAngle = 135.0;
  double quadTaper = 0.5;
  double quadSkew = 0.5;
  double tetMinAspect = 0.05;
  double tetMaxAspect = 100.0;
  double tetAspectRatio = 10.0;
  double tetSkew = 0.5;
  bool freezeBoundaryConditionRegions = false;
  bool presumeFeasibleBCRegionAtStart = false;
  std::int32_t numTrackedModes = 0;
  rgnC_Region modeTrackingRegion;
  bool activateDurability = false;
  cow_String durabilityInputfile;
  cow_List<cow_String> additionalDurabilityFiles;
  DurabilitySolverEnm durabilitySolver = DurabilitySolverEnm::FE_SAFE;
};
