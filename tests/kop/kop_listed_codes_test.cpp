// The codes the class reference lists for each task kind against what its validation does: the
// kind's own rules, then the rules every kind runs last (the general-only settings and how the
// items fit the task).
#include <vector>

#include "kop/kopC_BeadTask.h"
#include "kop/kopC_FixedRegion.h"
#include "kop/kopC_LocalStopCondition.h"
#include "kop/kopC_MemberSize.h"
#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimObjectiveFunction.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SingleTermDesignResponse.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_ThicknessControl.h"
#include "kop/kopC_TopologyTask.h"
#include "tests/kop/kop_test.h"
#include "tests/support/qmx_code_order.h"

namespace {

enum ListedAlgorithm { kListedAny = 0, kListedGeneral = 1, kListedConditionBased = 2 };

void ListedAlgorithmOf(kopC_OrimTask& t, ListedAlgorithm a) {
  t.SetAlgorithm(a == kListedGeneral ? kopC_AlgorithmEnm::GENERAL_OPTIMIZATION
                                     : kopC_AlgorithmEnm::CONDITION_BASED_OPTIMIZATION);
}

kopC_SingleTermDesignResponse ListedVolumeResponse() {
  kopC_SingleTermRequest request;
  request.SetIdentifier("VOLUME");
  kopC_SingleTermDesignResponse response;
  response.SetRequest(request);
  return response;
}

// An objective function over the named responses, with a reference value on the last entry
// when one is given.
kopC_OrimObjectiveFunction ListedObjectives(std::vector<const char*> responses, double reference = kopC_kUnset) {
  std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle> list;
  for (const char* r : responses) {
    kopC_Objective o;
    o.SetDesignResponse(r);
    list.emplace_back(o);
  }
  list.back().Get().SetReferenceValue(reference);
  kopC_OrimObjectiveFunction f;
  f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(list));
  return f;
}

// The rules every kind runs last, as cases on a task of kind T. The items are named so that the
// containers hold them in the order of the rules they break (names sort naturally).
template <class T>
std::vector<qmx_CodeCase<T>> ListedTaskCases(bool topology, bool shape) {
  std::vector<qmx_CodeCase<T>> cases = {
      {"tessar with condition-based",
       [](T& t) { ListedAlgorithmOf(t, kListedConditionBased), t.SetTessarSensitivities(true); }, 130, {},
       kListedConditionBased},
      {"group operator with condition-based",
       [](T& t) { ListedAlgorithmOf(t, kListedConditionBased), t.SetGroupOperator(true); }, 131, {},
       kListedConditionBased},
      {"two objectives with condition-based",
       [](T& t) {
         ListedAlgorithmOf(t, kListedConditionBased);
         t.GetObjectiveFunctionContainer().Insert("ObjectiveA", ListedObjectives({"Volume", "Volume"}));
       },
       4, {}, kListedConditionBased},
      {"mixed reference values with general",
       [](T& t) {
         ListedAlgorithmOf(t, kListedGeneral);
         t.GetObjectiveFunctionContainer().Insert("ObjectiveB", ListedObjectives({"Volume", "Volume"}, 2.0));
       },
       105, {"objectiveB"}, kListedGeneral},
      {"a reference value with condition-based",
       [](T& t) {
         ListedAlgorithmOf(t, kListedConditionBased);
         t.GetObjectiveFunctionContainer().Insert("ObjectiveB", ListedObjectives({"Volume"}, 2.0));
       },
       106, {"objectiveB"}, kListedConditionBased},
      {"a constraint on a missing response",
       [](T& t) {
         kopC_OrimConstraint c;
         c.SetDesignResponse("Missing");
         t.GetConstraintContainer().Insert("ConstraintA", c);
       },
       0},
      {"a restriction of another kind of task",
       [shape](T& t) {
         if (shape) {
           kopC_ThicknessControl c;
           c.SetMinThickness(1);
           t.GetGeometricRestrictionContainer().Insert("RestrictionA", c);
         } else {
           kopC_FixedRegion f;
           f.SetU1(true);
           t.GetGeometricRestrictionContainer().Insert("RestrictionA", f);
         }
       },
       137},
  };
  if (topology) {
    cases.push_back({"a relative volume constraint of 1",
                     [](T& t) {
                       kopC_OrimConstraint c;
                       c.SetDesignResponse("Volume");
                       c.SetRestrictionMethod(kopC_RestrictionMethodEnm::RELATIVE_LESS_THAN_EQUAL);
                       c.SetRestrictionValue(1.0);
                       t.GetConstraintContainer().Insert("ConstraintB", c);
                     },
                     127});
    cases.push_back({"a maximum member size with condition-based",
                     [](T& t) {
                       ListedAlgorithmOf(t, kListedConditionBased);
                       kopC_MemberSize m;
                       m.SetSizeRestriction(kopC_MemberSize::SizeRestrictionEnm::MAXIMUM);
                       t.GetGeometricRestrictionContainer().Insert("RestrictionB", m);
                     },
                     88, {}, kListedConditionBased});
  }
  if (!shape) {
    cases.push_back({"a local stop condition",
                     [](T& t) {
                       kopC_LocalStopCondition s;
                       s.SetIdentifier("SIG_MISES"), s.SetReferenceFactor(0.9);
                       t.GetStopConditionContainer().Insert("Stop", s);
                     },
                     115});
  }
  return cases;
}

template <class T>
T ListedTask() {
  T t;
  t.GetDesignResponseContainer().Insert("Volume", ListedVolumeResponse());
  return t;
}

template <class T>
void ListedCheck(std::vector<qmx_CodeCase<T>> own, bool topology, bool shape) {
  for (auto& c : ListedTaskCases<T>(topology, shape)) own.push_back(c);
  qmx_CheckListedCodes<T>(T::kClassName, own, [] { return ListedTask<T>(); });
}

TEST(KopListedCodes, TopologyTask) {
  kop_Start();
  using T = kopC_TopologyTask;
  using M = T::SoftDeletionMethodEnm;
  ListedCheck<T>(
      {
          {"min density 0", [](T& t) { t.SetMinDensity(0); }, 40, {"min"}},
          {"max density 2", [](T& t) { t.SetMaxDensity(2); }, 42, {"max"}},
          {"move limit 0", [](T& t) { t.SetDensityMoveLimit(0); }, 43},
          {"min above max", [](T& t) { t.SetMinDensity(0.6), t.SetMaxDensity(0.5); }, 70, {"min", "max"}},
          {"initial density outside", [](T& t) { t.SetInitialDensity(0.0005); }, 69, {"min"}},
          {"filter radius -1", [](T& t) { t.SetFilterRadius(-1); }, 44},
          {"penalty -1", [](T& t) { t.SetMaterialInterpolationPenalty(-1); }, 45},
          {"three fulfilled criteria", [](T& t) { t.SetNumFulfilledStopCriteria(3); }, 46},
          {"objective delta -1", [](T& t) { t.SetObjectiveFunctionDeltaStopCriteria(-1); }, 47},
          {"density delta -1", [](T& t) { t.SetElementDensityDeltaStopCriteria(-1); }, 48},
          {"criteria cycle 2", [](T& t) { t.SetStopCriteriaIteration(2); }, 49},
          {"soft deletion radius -1", [](T& t) { t.SetSoftDeletionAverageEdgeLength(-1); }, 50},
          {"multiple processors with condition-based",
           [](T& t) { ListedAlgorithmOf(t, kListedConditionBased), t.SetMultipleProcessors(true); }, 51, {},
           kListedConditionBased},
          {"nine design cycles", [](T& t) { t.SetNumIterations(9); }, 64},
          {"a fixed step without deleted volume", [](T& t) { t.SetStepSize(T::StepSizeEnm::LARGE); }, 63, {"volume"}},
          {"a dynamic step with deleted volume",
           [](T& t) { t.SetFirstCycleDeletedVolumeTechnique(T::DeletedVolumeTechniqueEnm::PERCENTAGE); }, 62,
           {"volume"}},
          {"tracked modes -1", [](T& t) { t.SetNumTrackedModes(-1); }, 65},
          {"spectrum weight -1", [](T& t) { t.SetFrequencySpectrumWeight(-1); }, 66},
          {"a compressive method with a positive threshold",
           [](T& t) { t.SetSoftDeletionMethod(M::MIN_PRINCIPAL_STRAIN); }, 104, {"soft"}},
          {"a tensile method with a negative threshold",
           [](T& t) { t.SetSoftDeletionMethod(M::MAX_PRINCIPAL_STRAIN), t.SetSoftDeletionThreshold(-1); }, 103,
           {"soft"}},
      },
      true, false);
}

TEST(KopListedCodes, ShapeTask) {
  kop_Start();
  using T = kopC_ShapeTask;
  using R = T::SmoothingRegionMethodEnm;
  const auto general = [](void (*change)(T&)) {
    return [change](T& t) { ListedAlgorithmOf(t, kListedGeneral), change(t); };
  };
  ListedCheck<T>(
      {
          {"no smoothed layers",
           general([](T& t) {
             t.SetMeshSmoothingStrategy(T::SmoothingStrategyEnm::LOCAL_GRADIENT), t.SetNumSmoothedElementLayers(0);
           }),
           71, {}, kListedGeneral},
          {"free node layers -1", general([](T& t) { t.SetNumFreeNodeLayers(-1); }), 72, {}, kListedGeneral},
          {"feature angle -1",
           general([](T& t) {
             t.SetNodeLayersApproach(T::NodeLayersApproachEnm::FEATURE_RECOGNITION), t.SetFeatureRecognitionAngle(-1);
           }),
           73, {}, kListedGeneral},
          {"tri min angle 60", general([](T& t) { t.SetTriMinAngle(60); }), 74, {}, kListedGeneral},
          {"tri max angle 60", general([](T& t) { t.SetTriMaxAngle(60); }), 75, {}, kListedGeneral},
          {"quad min angle 90", general([](T& t) { t.SetQuadMinAngle(90); }), 76, {}, kListedGeneral},
          {"quad max angle 90", general([](T& t) { t.SetQuadMaxAngle(90); }), 77, {}, kListedGeneral},
          {"quad taper -1", general([](T& t) { t.SetQuadTaper(-1); }), 78, {}, kListedGeneral},
          {"quad skew -1", general([](T& t) { t.SetQuadSkew(-1); }), 79, {}, kListedGeneral},
          {"tet min aspect 2", general([](T& t) { t.SetTetMinAspect(2); }), 80, {}, kListedGeneral},
          {"tet max aspect 1", general([](T& t) { t.SetTetMaxAspect(1); }), 81, {}, kListedGeneral},
          {"tet aspect ratio -1", general([](T& t) { t.SetTetAspectRatio(-1); }), 82, {}, kListedGeneral},
          {"tet skew -1", general([](T& t) { t.SetTetSkew(-1); }), 83, {}, kListedGeneral},
          {"halt without report", general([](T& t) { t.SetHaltUponViolation(true); }), 84, {}, kListedGeneral},
          {"no smoothing region", general([](T& t) { t.SetMeshSmoothingRegionMethod(R::REGION); }), 95, {"region"},
           kListedGeneral},
          {"no layer reference region", general([](T& t) { t.SetMeshSmoothingRegionMethod(R::NUMBER_OF_LAYERS); }), 96,
           {"region"}, kListedGeneral},
          {"curvature smoothing -1",
           [](T& t) { ListedAlgorithmOf(t, kListedConditionBased), t.SetCurvatureSmoothingEdgeLength(-1); }, 33, {},
           kListedConditionBased},
          {"tolerance -1", [](T& t) { ListedAlgorithmOf(t, kListedConditionBased), t.SetTolerance(-1); }, 34, {},
           kListedConditionBased},
      },
      false, true);
}

TEST(KopListedCodes, SizingTask) {
  kop_Start();
  using T = kopC_SizingTask;
  ListedCheck<T>(
      {
          {"move limit 0", [](T& t) { t.SetThicknessMoveLimit(0); }, 111},
          {"filter radius -1", [](T& t) { t.SetFilterRadius(-1); }, 44},
          {"no fulfilled criteria", [](T& t) { t.SetNumFulfilledStopCriteria(0); }, 46},
          {"objective delta -1", [](T& t) { t.SetObjectiveFunctionDeltaStopCriteria(-1); }, 47},
          {"thickness delta -1", [](T& t) { t.SetElementThicknessDeltaStopCriteria(-1); }, 113},
          {"criteria cycle 2", [](T& t) { t.SetStopCriteriaIteration(2); }, 49},
          {"tracked modes -1", [](T& t) { t.SetNumTrackedModes(-1); }, 65},
      },
      false, false);
}

TEST(KopListedCodes, BeadTask) {
  kop_Start();
  using T = kopC_BeadTask;
  ListedCheck<T>(
      {
          {"move limit 0", [](T& t) { t.SetNodalMoveLimit(0); }, 43},
          {"tracked modes -1", [](T& t) { t.SetNumTrackedModes(-1); }, 65},
          {"width 0", [](T& t) { t.SetBeadWidth(0); }, 117},
          {"min stress -1", [](T& t) { t.SetBeadMinStress(-1); }, 118},
          {"max membrane stress -1", [](T& t) { t.SetBeadMaxMembrane(-1); }, 119},
          {"curve smooth 0", [](T& t) { t.SetCurveSmooth(0); }, 120},
          {"node smooth 0", [](T& t) { t.SetNodeSmooth(0); }, 121},
          {"no bead iteration", [](T& t) { t.SetBeadIter(0); }, 122},
          {"perturbation 0", [](T& t) { t.SetBeadPerturbation(0); }, 123},
      },
      false, false);
}

TEST(KopListedCodes, SingleTermRequest) {
  kop_Start();
  using T = kopC_SingleTermRequest;
  using Op = kopC_VariableOperationEnm;
  const auto step = [] {
    kopC_StepOption o;
    o.SetMultipleStep("Step-1");
    return cow_List<T::StepOptionHandle>(std::vector<T::StepOptionHandle>{T::StepOptionHandle(o)});
  };
  // Which operations a request may take depends on its identifier: the cases that change either
  // are not combined.
  qmx_CheckListedCodes<T>(
      T::kClassName,
      {
          {"no identifier", [](T& t) { t.SetIdentifier(""); }, 5, {"identifier"}},
          {"average", [](T& t) { t.SetOperation(Op::AVERAGE); }, 6, {"operation"}},
          {"no operation on a local result", [](T& t) { t.SetOperation(Op::NOT_APPLICABLE); }, 90,
           {"operation", "identifier"}},
          {"the minimum of a global result",
           [](T& t) { t.SetIdentifier("STRAIN_ENERGY"), t.SetOperation(Op::MINIMUM); }, 92,
           {"identifier", "operation"}},
          {"the maximum of a global result",
           [](T& t) { t.SetIdentifier("STRAIN_ENERGY"), t.SetOperation(Op::MAXIMUM); }, 93,
           {"identifier", "operation"}},
          {"the maximum of a stress over the whole model",
           [](T& t) { t.SetOperation(Op::MAXIMUM), t.SetDrivingRegion(rgnC_Region()); }, 98,
           {"operation", "region", "identifier"}},
          {"the stiffness measure over a region", [](T& t) { t.SetIdentifier("ENERGY_STIFF_MEASURE"); }, 110,
           {"identifier"}},
          {"deviation from a variable",
           [](T& t) { t.SetDeviationReference(kopC_DeviationReferenceEnm::DEVIATION_FROM_VARIABLE); }, 68},
          {"deviation reference 0", [](T& t) { t.SetDeviationReferenceValue(0); }, 7},
          {"a shell layer of a displacement",
           [](T& t) { t.SetIdentifier("DISP_ABS"), t.SetShellLayer(kopC_ShellLayerEnm::TOP); }, 129, {"identifier"}},
          {"steps for the volume", [](T& t) { t.SetIdentifier("VOLUME"); }, 87, {"identifier"}},
          {"no step for a stress", [](T& t) { t.SetStepOptions({}); }, 125, {"identifier", "steps"}},
      },
      [step] {
        T t;
        t.SetIdentifier("SIG_MISES");
        t.SetDrivingRegion(rgnC_Region("Part-1-1.Set-1"));
        t.SetStepOptions(step());
        return t;
      });
}

TEST(KopListedCodes, StepOption) {
  kop_Start();
  using T = kopC_StepOption;
  qmx_CheckListedCodes<T>(
      T::kClassName,
      {
          {"no step", [](T& t) { t.SetMultipleStep(""); }, 125, {"step"}},
          {"every step and a load case", [](T& t) { t.SetMultipleStep("ALL"), t.SetLoadCase("LC-1"); }, 86, {"step"}},
          {"lower mode 0", [](T& t) { t.SetUseAllModes(false), t.SetLowerMode(0); }, 30, {"modes"}},
          {"upper mode 0", [](T& t) { t.SetUseAllModes(false), t.SetUpperMode(0); }, 31, {"modes"}},
          {"lower above upper", [](T& t) { t.SetUseAllModes(false), t.SetLowerMode(3), t.SetUpperMode(2); }, 32,
           {"modes"}},
      },
      [] {
        T t;
        t.SetMultipleStep("Step-1");
        return t;
      });
}

}  // namespace
