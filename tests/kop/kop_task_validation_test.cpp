// Validation of the four task kinds: boundaries, the order of the rules and the
// general-only settings every kind checks last.
#include "kop/kopC_BeadTask.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_TopologyTask.h"
#include "tests/kop/kop_test.h"

namespace {

using Topo = kopC_TopologyTask;
using General = kopC_AlgorithmEnm;

const std::string kMinDensity = "Minimum density must be greater than zero.";
const std::string kMaxDensity = "Maximum density must be greater than zero.";
const std::string kMaxAboveOne = "Maximum density must be less than or equal to one.";
const std::string kMoveLimit = "Density move limit must be greater than zero.";
const std::string kMinAboveMax = "Minimum density must be less than or equal to the maximum.";
const std::string kInitial = "Initial density must be greater than zero.";
const std::string kInitialBounds =
    "Initial density must be greater than or equal to the minimum and less than or equal to the maximum.";
const std::string kFilter = "Filter radius must be greater than zero.";
const std::string kPenalty = "Penalty factor for material interpolation must be greater than zero.";
const std::string kFulfilled = "Number of fulfilled criteria must be 1 or 2.";
const std::string kObjectiveDelta = "Objective function delta criteria must be greater than or equal to zero.";
const std::string kDensityDelta = "Element density delta criteria must be greater than or equal to zero.";
const std::string kCriteriaCycle = "Criteria design cycle number must be greater than two.";
const std::string kSoftRadius = "Soft deletion edge length must be greater than or equal to zero.";
const std::string kProcessors = "Multiple processor setting is only valid with sensitivity.";
const std::string kDynamic = "Step size cannot be dynamic when using deleted volume technique.";
const std::string kDeletedVolume = "Deleted volume technique is required when step size is not dynamic.";
const std::string kCycles = "Number of design cycles must be greater than or equal to 10.";
const std::string kModes = "Number of tracked modes must be greater than or equal to zero.";
const std::string kSpectrum = "Frequency spectrum weight must be greater than or equal to zero.";
const std::string kThreshold =
    "For the specified soft deletion method threshold value must be greater than or equal to zero.";
const std::string kTessar = "Tessar sensitivities are currently supported only for general optimization.";
const std::string kGroup = "Group Operator is currently supported only for general optimization.";

TEST(KopTopologyTask, EachRuleAtItsBoundary) {
  kop_Start();
  using S = Topo::StepSizeEnm;
  using D = Topo::DeletedVolumeTechniqueEnm;
  using M = Topo::SoftDeletionMethodEnm;
  kop_CheckCases<Topo>({
      {"9 design cycles", [](Topo& t) { t.SetNumIterations(9); }, kCycles},
      {"10 design cycles", [](Topo& t) { t.SetNumIterations(10); }, ""},
      {"min density 0", [](Topo& t) { t.SetMinDensity(0); }, kMinDensity},
      {"max density 0", [](Topo& t) { t.SetMaxDensity(0); }, kMaxDensity},
      {"max density just above 1", [](Topo& t) { t.SetMaxDensity(1.0000001); }, kMaxAboveOne},
      {"move limit 0", [](Topo& t) { t.SetDensityMoveLimit(0); }, kMoveLimit},
      {"min above max", [](Topo& t) { t.SetMinDensity(0.5), t.SetMaxDensity(0.4); }, kMinAboveMax},
      {"min equal to max", [](Topo& t) { t.SetMinDensity(0.5), t.SetMaxDensity(0.5); }, ""},
      {"initial density 0", [](Topo& t) { t.SetInitialDensity(0); }, kInitial},
      {"initial below min", [](Topo& t) { t.SetInitialDensity(0.0005); }, kInitialBounds},
      {"initial at min", [](Topo& t) { t.SetInitialDensity(0.001); }, ""},
      {"initial at max", [](Topo& t) { t.SetInitialDensity(1.0); }, ""},
      {"filter radius 0 passes", [](Topo& t) { t.SetFilterRadius(0); }, ""},
      {"filter radius negative", [](Topo& t) { t.SetFilterRadius(-0.1); }, kFilter},
      {"penalty 0 passes", [](Topo& t) { t.SetMaterialInterpolationPenalty(0); }, ""},
      {"penalty negative", [](Topo& t) { t.SetMaterialInterpolationPenalty(-1); }, kPenalty},
      {"fulfilled criteria 0", [](Topo& t) { t.SetNumFulfilledStopCriteria(0); }, kFulfilled},
      {"fulfilled criteria 1", [](Topo& t) { t.SetNumFulfilledStopCriteria(1); }, ""},
      {"fulfilled criteria 3", [](Topo& t) { t.SetNumFulfilledStopCriteria(3); }, kFulfilled},
      {"objective delta negative", [](Topo& t) { t.SetObjectiveFunctionDeltaStopCriteria(-1e-9); }, kObjectiveDelta},
      {"density delta negative", [](Topo& t) { t.SetElementDensityDeltaStopCriteria(-1e-9); }, kDensityDelta},
      {"criteria cycle 2", [](Topo& t) { t.SetStopCriteriaIteration(2); }, kCriteriaCycle},
      {"criteria cycle 3", [](Topo& t) { t.SetStopCriteriaIteration(3); }, ""},
      {"soft deletion radius negative", [](Topo& t) { t.SetSoftDeletionAverageEdgeLength(-1); }, kSoftRadius},
      {"multiple processors, general", [](Topo& t) { t.SetMultipleProcessors(true); }, ""},
      {"multiple processors, condition-based",
       [](Topo& t) { t.SetMultipleProcessors(true), t.SetAlgorithm(General::CONDITION_BASED_OPTIMIZATION); },
       kProcessors},
      {"small steps without deleted volume", [](Topo& t) { t.SetStepSize(S::SMALL); }, kDeletedVolume},
      {"small steps with deleted volume",
       [](Topo& t) { t.SetStepSize(S::SMALL), t.SetFirstCycleDeletedVolumeTechnique(D::PERCENTAGE); }, ""},
      {"dynamic steps with deleted volume", [](Topo& t) { t.SetFirstCycleDeletedVolumeTechnique(D::ABSOLUTE); }, kDynamic},
      {"tracked modes negative", [](Topo& t) { t.SetNumTrackedModes(-1); }, kModes},
      {"spectrum weight negative", [](Topo& t) { t.SetFrequencySpectrumWeight(-1); }, kSpectrum},
      {"method 3, default threshold", [](Topo& t) { t.SetSoftDeletionMethod(M::MIN_PRINCIPAL_STRAIN); }, kThreshold},
      {"method 5, default threshold", [](Topo& t) { t.SetSoftDeletionMethod(M::VOLUMETRIC_STRAIN_COMPRESSION); }, kThreshold},
      {"method 3, zero threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(M::MIN_PRINCIPAL_STRAIN), t.SetSoftDeletionThreshold(0); }, kThreshold},
      {"method 3, negative threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(M::MIN_PRINCIPAL_STRAIN), t.SetSoftDeletionThreshold(-0.05); }, ""},
      {"method 2, negative threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(M::MAX_PRINCIPAL_STRAIN), t.SetSoftDeletionThreshold(-0.05); }, kThreshold},
      {"method 4, zero threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(M::VOLUMETRIC_STRAIN_TENSION), t.SetSoftDeletionThreshold(0); }, ""},
      {"method 1, negative threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(M::MAX_SHEAR_STRAIN), t.SetSoftDeletionThreshold(-1); }, kThreshold},
      {"method 6 skips the threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(static_cast<M>(6)), t.SetSoftDeletionThreshold(-1); }, ""},
      {"method 7 skips the threshold",
       [](Topo& t) { t.SetSoftDeletionMethod(static_cast<M>(7)), t.SetSoftDeletionThreshold(1); }, ""},
      {"unset damping is not tested", [](Topo& t) { t.SetStructuralMassDamping(-5); }, ""},
  });
}

// Each case breaks two rules; the earlier one in the fixed order must be the one reported.
TEST(KopTopologyTask, RulesRunInTheirFixedOrder) {
  kop_Start();
  kop_CheckCases<Topo>({
      {"min density before max density", [](Topo& t) { t.SetMinDensity(0), t.SetMaxDensity(0); }, kMinDensity},
      {"max above one before move limit", [](Topo& t) { t.SetMaxDensity(2), t.SetDensityMoveLimit(0); }, kMaxAboveOne},
      {"move limit before min above max",
       [](Topo& t) { t.SetDensityMoveLimit(0), t.SetMinDensity(0.5), t.SetMaxDensity(0.4); }, kMoveLimit},
      {"min above max before the initial density",
       [](Topo& t) { t.SetMinDensity(0.5), t.SetMaxDensity(0.4), t.SetInitialDensity(-1); }, kMinAboveMax},
      {"initial density before the filter radius", [](Topo& t) { t.SetInitialDensity(-1), t.SetFilterRadius(-1); }, kInitial},
      {"filter before penalty", [](Topo& t) { t.SetFilterRadius(-1), t.SetMaterialInterpolationPenalty(-1); }, kFilter},
      {"criteria cycle before soft radius",
       [](Topo& t) { t.SetStopCriteriaIteration(0), t.SetSoftDeletionAverageEdgeLength(-1); }, kCriteriaCycle},
      {"design cycles before the deleted-volume rule",
       [](Topo& t) { t.SetNumIterations(1), t.SetStepSize(Topo::StepSizeEnm::LARGE); }, kCycles},
      {"deleted-volume rule before tracked modes",
       [](Topo& t) { t.SetStepSize(Topo::StepSizeEnm::LARGE), t.SetNumTrackedModes(-1); }, kDeletedVolume},
      {"spectrum before soft deletion",
       [](Topo& t) {
         t.SetFrequencySpectrumWeight(-1), t.SetSoftDeletionMethod(Topo::SoftDeletionMethodEnm::MIN_PRINCIPAL_STRAIN);
       },
       kSpectrum},
      {"soft deletion before the task's own rules",
       [](Topo& t) {
         t.SetSoftDeletionThreshold(-1), t.SetAlgorithm(General::CONDITION_BASED_OPTIMIZATION), t.SetGroupOperator(true);
       },
       kThreshold},
  });
}

TEST(KopTopologyTask, GeneralOnlySettingsAndSuppression) {
  kop_Start();
  kop_CheckCases<Topo>({
      {"tessar with general", [](Topo& t) { t.SetTessarSensitivities(true), t.SetGroupOperator(true); }, ""},
      {"tessar with condition-based",
       [](Topo& t) { t.SetAlgorithm(General::CONDITION_BASED_OPTIMIZATION), t.SetTessarSensitivities(true); }, kTessar},
      {"group operator with condition-based",
       [](Topo& t) { t.SetAlgorithm(General::CONDITION_BASED_OPTIMIZATION), t.SetGroupOperator(true); }, kGroup},
      {"tessar before group operator",
       [](Topo& t) {
         t.SetAlgorithm(General::CONDITION_BASED_OPTIMIZATION), t.SetGroupOperator(true), t.SetTessarSensitivities(true);
       },
       kTessar},
      {"a suppressed task is not validated", [](Topo& t) { t.SetSuppressed(true), t.SetNumIterations(0); }, ""},
  });
}

TEST(KopShapeTask, GeneralChecksMeshQualityConditionBasedChecksSmoothing) {
  kop_Start();
  using T = kopC_ShapeTask;
  auto general = [] {
    T t;
    t.SetAlgorithm(General::GENERAL_OPTIMIZATION);
    return t;
  };
  kop_CheckCases<T>(
      {
          {"smoothed layers 0 with local gradient",
           [](T& t) { t.SetMeshSmoothingStrategy(T::SmoothingStrategyEnm::LOCAL_GRADIENT), t.SetNumSmoothedElementLayers(0); },
           "Number of smoothing element layers must be greater than zero."},
          {"smoothed layers 0 with constrained laplacian", [](T& t) { t.SetNumSmoothedElementLayers(0); }, ""},
          {"free node layers negative", [](T& t) { t.SetNumFreeNodeLayers(-1); },
           "Number of free node layers must be greater than or equal to zero."},
          {"feature angle negative, counted layers", [](T& t) { t.SetFeatureRecognitionAngle(-1); }, ""},
          {"feature angle negative, feature recognition",
           [](T& t) {
             t.SetNodeLayersApproach(T::NodeLayersApproachEnm::FEATURE_RECOGNITION), t.SetFeatureRecognitionAngle(-1);
           },
           "Feature recognition angle must be greater than or equal to zero."},
          {"tri min 59", [](T& t) { t.SetTriMinAngle(59); }, ""},
          {"tri min 59.5", [](T& t) { t.SetTriMinAngle(59.5); },
           "Tri minimum angle must be greater than or equal to zero and less than or equal to 59."},
          {"tri max 60", [](T& t) { t.SetTriMaxAngle(60); },
           "Tri maximum angle must be greater than or equal to 61 and less than or equal to 180."},
          {"tri max 180", [](T& t) { t.SetTriMaxAngle(180); }, ""},
          {"quad min 90 reports the tri message", [](T& t) { t.SetQuadMinAngle(90); },
           "Tri minimum angle must be greater than or equal to zero and less than or equal to 59."},
          {"quad max 90 reports a quad minimum message", [](T& t) { t.SetQuadMaxAngle(90); },
           "Quad minimum angle must be greater than or equal to 91 and less than or equal to 180."},
          {"quad taper negative", [](T& t) { t.SetQuadTaper(-1); }, "Quad taper must be greater than or equal to zero."},
          {"quad skew negative", [](T& t) { t.SetQuadSkew(-1); }, "Quad skew must be greater than or equal to zero."},
          {"tet min aspect 0.00177", [](T& t) { t.SetTetMinAspect(0.00177); }, ""},
          {"tet min aspect 0.00176", [](T& t) { t.SetTetMinAspect(0.00176); },
           "Tet minimum aspect ratio must be greater than or equal to 0.00177 and less than or equal to 1.3."},
          {"tet max aspect 999.5", [](T& t) { t.SetTetMaxAspect(999.5); },
           "Tet maximum aspect ratio must be greater than or equal to 1.36 and less than or equal to 999."},
          {"tet aspect ratio negative", [](T& t) { t.SetTetAspectRatio(-1); },
           "Tet aspect ratio must be greater than or equal to zero."},
          {"tet skew negative", [](T& t) { t.SetTetSkew(-1); }, "Tet skew must be greater than or equal to zero."},
          {"halt without report", [](T& t) { t.SetHaltUponViolation(true); },
           "reportQualityViolation must be set if haltUponViolation is used."},
          {"halt with report", [](T& t) { t.SetHaltUponViolation(true), t.SetReportQualityViolation(true); }, ""},
          {"smoothing a region that is not named", [](T& t) { t.SetMeshSmoothingRegionMethod(T::SmoothingRegionMethodEnm::REGION); },
           "A smoothing region must be specified."},
          {"smoothing a named region", [](T& t) {
             t.SetMeshSmoothingRegionMethod(T::SmoothingRegionMethodEnm::REGION), t.SetSmoothingRegion(rgnC_Region("Fillet"));
           }, ""},
          {"quality is reported before the smoothing region", [](T& t) {
             t.SetMeshSmoothingRegionMethod(T::SmoothingRegionMethodEnm::REGION), t.SetHaltUponViolation(true);
           }, "reportQualityViolation must be set if haltUponViolation is used."},
          {"layers without their reference region",
           [](T& t) { t.SetMeshSmoothingRegionMethod(T::SmoothingRegionMethodEnm::NUMBER_OF_LAYERS), t.SetSmoothingRegion(rgnC_Region("Fillet")); },
           "A smoothing layer region must be specified."},
          {"layers from a reference region", [](T& t) {
             t.SetMeshSmoothingRegionMethod(T::SmoothingRegionMethodEnm::NUMBER_OF_LAYERS), t.SetLayerReferenceRegion(rgnC_Region("Skin"));
           }, ""},
          {"no smoothing needs no region", [](T& t) {
             t.SetMeshSmoothingStrategy(T::SmoothingStrategyEnm::NONE), t.SetMeshSmoothingRegionMethod(T::SmoothingRegionMethodEnm::REGION);
           }, ""},
          {"no smoothing checks no quality", [](T& t) { t.SetMeshSmoothingStrategy(T::SmoothingStrategyEnm::NONE), t.SetTetSkew(-1); }, ""},
          {"tolerance is not tested when general", [](T& t) { t.SetTolerance(-1); }, ""},
          {"curvature length is not tested when general", [](T& t) { t.SetCurvatureSmoothingEdgeLength(-1); }, ""},
      },
      general);
  kop_CheckCases<T>({
      {"tolerance -1", [](T& t) { t.SetTolerance(-1); }, "Tolerance must be greater than or equal to zero."},
      {"tolerance 0", [](T& t) { t.SetTolerance(0); }, ""},
      {"curvature length before tolerance", [](T& t) { t.SetCurvatureSmoothingEdgeLength(-1), t.SetTolerance(-1); },
       "Curvature smoothing edge length must be greater than or equal to zero."},
      {"mesh quality is not tested when condition-based", [](T& t) { t.SetTetSkew(-1); }, ""},
      {"tessar needs general", [](T& t) { t.SetTessarSensitivities(true); }, kTessar},
  });
}

TEST(KopSizingTask, RulesInOrder) {
  kop_Start();
  using T = kopC_SizingTask;
  kop_CheckCases<T>({
      {"move limit 0", [](T& t) { t.SetThicknessMoveLimit(0); }, "Thickness move limit must be greater than zero."},
      {"filter radius negative", [](T& t) { t.SetFilterRadius(-1); }, kFilter},
      {"fulfilled criteria 3", [](T& t) { t.SetNumFulfilledStopCriteria(3); }, kFulfilled},
      {"objective delta negative", [](T& t) { t.SetObjectiveFunctionDeltaStopCriteria(-1); }, kObjectiveDelta},
      {"thickness delta negative", [](T& t) { t.SetElementThicknessDeltaStopCriteria(-1); },
       "Element thickness delta criteria must be greater than or equal to zero."},
      {"criteria cycle 2", [](T& t) { t.SetStopCriteriaIteration(2); }, kCriteriaCycle},
      {"criteria cycle 3", [](T& t) { t.SetStopCriteriaIteration(3); }, ""},
      {"tracked modes negative", [](T& t) { t.SetNumTrackedModes(-1); }, kModes},
      {"move limit before filter", [](T& t) { t.SetThicknessMoveLimit(0), t.SetFilterRadius(-1); },
       "Thickness move limit must be greater than zero."},
      {"group operator needs general", [](T& t) { t.SetGroupOperator(true); }, kGroup},
  });
}

TEST(KopBeadTask, RulesInOrder) {
  kop_Start();
  using T = kopC_BeadTask;
  kop_CheckCases<T>({
      {"nodal move limit 0 reports the density move limit", [](T& t) { t.SetNodalMoveLimit(0); }, kMoveLimit},
      {"tracked modes negative", [](T& t) { t.SetNumTrackedModes(-1); }, kModes},
      {"bead width 0", [](T& t) { t.SetBeadWidth(0); }, "Bead width must be greater than zero."},
      {"min stress 0 passes", [](T& t) { t.SetBeadMinStress(0); }, ""},
      {"min stress negative", [](T& t) { t.SetBeadMinStress(-1); }, "Bead min stress must be greater than zero."},
      {"max membrane negative", [](T& t) { t.SetBeadMaxMembrane(-1); },
       "Bead max membrane stress must be greater than zero."},
      {"curve smooth 0", [](T& t) { t.SetCurveSmooth(0); }, "Curve smooth must be greater than zero."},
      {"node smooth 0", [](T& t) { t.SetNodeSmooth(0); }, "Node smooth must be greater than zero."},
      {"bead iterations 0", [](T& t) { t.SetBeadIter(0); }, "Bead iteration must be greater than zero."},
      {"bead iterations 1", [](T& t) { t.SetBeadIter(1); }, ""},
      {"perturbation 0", [](T& t) { t.SetBeadPerturbation(0); }, "Bead perturbation must be greater than zero."},
      {"width before iterations", [](T& t) { t.SetBeadWidth(0), t.SetBeadIter(0); }, "Bead width must be greater than zero."},
  });
}

// The messages behind the table's codes are checked by the rules that raise them; here, the
// codes outside the table and one text no validation of these tests reaches.
TEST(KopAssert, CodesOutsideTheTableThrowAnEmptyMessage) {
  EXPECT_EQ(kop_Failure([] { kopC_Assert(false, static_cast<kopC_ErrorEnm>(138)); }), "");
  EXPECT_EQ(kop_Failure([] { kopC_Assert(false, static_cast<kopC_ErrorEnm>(-1)); }), "");
  EXPECT_EQ(kop_Failure([] { kopC_Assert(true, kopC_UnknownTaskCopy); }), "");
  EXPECT_EQ(kop_Failure([] { kopC_Assert(false, static_cast<kopC_ErrorEnm>(98)); }),
            "The region must be small, not exceeding 500 nodes, when used with the selected variable and operation is "
            "set to MINIMUM or MAXIMUM.  Whole model is not permitted.");
}

}  // namespace
