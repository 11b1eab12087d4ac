// Validation of the items a task holds, alone and as parts of their task.
#include <cmath>

#include "kop/kopC_CombinedTermDesignResponse.h"
#include "kop/kopC_CyclicSymmetry.h"
#include "kop/kopC_DemoldControl.h"
#include "kop/kopC_DrillControl.h"
#include "kop/kopC_GrowthRestriction.h"
#include "kop/kopC_ShapeDemoldControl.h"
#include "kop/kopC_ShapeMemberSize.h"
#include "kop/kopC_ThicknessControl.h"
#include "kop/kopC_TranslationalSymmetry.h"
#include "kop/kopC_FixedRegion.h"
#include "kop/kopC_FrozenArea.h"
#include "kop/kopC_LocalStopCondition.h"
#include "kop/kopC_MemberSize.h"
#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimObjectiveFunction.h"
#include "kop/kopC_OrimStopCondition.h"
#include "kop/kopC_RotationalSymmetry.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SingleTermDesignResponse.h"
#include "kop/kopC_SingleVariable.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_TopologyTask.h"
#include "tests/kop/kop_test.h"

namespace {

using Op = kopC_VariableOperationEnm;
using Req = kopC_SingleTermRequest;
using Comb = kopC_CombinedTermRequest;
using Method = kopC_CombinedTermRequestMethodEnm;

kopC_StepOption Step(const char* step, const char* loadCase = "") {
  kopC_StepOption s;
  s.SetMultipleStep(step);
  s.SetLoadCase(loadCase);
  return s;
}

Req Request(const char* identifier, Op op = Op::SUM) {
  Req r;
  r.SetIdentifier(identifier);
  r.SetOperation(op);
  return r;
}

TEST(KopRequests, SingleTermRules) {
  kop_Start();
  auto withStep = [](Req& r, const kopC_StepOption& s) {
    r.SetStepOptions(cow_List<Req::StepOptionHandle>(std::vector<Req::StepOptionHandle>{Req::StepOptionHandle(s)}));
  };
  kop_CheckCases<Req>(
      {
          {"no identifier", [](Req& r) { r.SetIdentifier(""); }, "Identifier must be specified."},
          {"average", [](Req& r) { r.SetOperation(Op::AVERAGE); }, "Operation cannot be AVERAGE for a design response."},
          {"no operation on a nodal result", [](Req& r) { r.SetIdentifier("DISP_ABS"), r.SetOperation(Op::NOT_APPLICABLE); },
           "The operation value must be specified."},
          {"maximum displacement", [](Req& r) { r.SetIdentifier("DISP_ABS"), r.SetOperation(Op::MAXIMUM); }, ""},
          {"minimum volume", [](Req& r) { r.SetIdentifier("VOLUME"), r.SetOperation(Op::MINIMUM); },
           "The minimum operation cannot used be with the given identifier."},
          {"maximum strain energy", [](Req& r) { r.SetOperation(Op::MAXIMUM); },
           "The maximum operation cannot be used with the given identifier."},
          {"deviation from a variable", [](Req& r) { r.SetDeviationReference(kopC_DeviationReferenceEnm::DEVIATION_FROM_VARIABLE); },
           "Deviation from variable is not yet supported."},
          {"deviation value 0", [](Req& r) { r.SetDeviationReferenceValue(0); },
           "The deviation reference value must be greater than zero."},
          {"deviation value 0.5", [](Req& r) { r.SetDeviationReferenceValue(0.5); }, ""},
          {"layer on strain energy", [](Req& r) { r.SetShellLayer(kopC_ShellLayerEnm::MIDDLE); },
           "Shell Layer Value provided is invalid for the given design response."},
          {"layer on a stress", [](Req& r) {
             r.SetIdentifier("SIG_MISES"), r.SetOperation(Op::MAXIMUM), r.SetShellLayer(kopC_ShellLayerEnm::BOTTOM);
             r.SetDrivingRegion(rgnC_Region("Hot-Spot"));
           }, ""},
          {"maximum stress over the whole model", [](Req& r) { r.SetIdentifier("SIG_MISES"), r.SetOperation(Op::MAXIMUM); },
           "The region must be small, not exceeding 500 nodes, when used with the selected variable and operation is set to "
           "MINIMUM or MAXIMUM.  Whole model is not permitted."},
          {"minimum strain over the whole model", [](Req& r) { r.SetIdentifier("STRAIN_TOTAL"), r.SetOperation(Op::MINIMUM); },
           "The region must be small, not exceeding 500 nodes, when used with the selected variable and operation is set to "
           "MINIMUM or MAXIMUM.  Whole model is not permitted."},
          {"summed stress over the whole model", [](Req& r) { r.SetIdentifier("SIG_MISES"), r.SetOperation(Op::SUM); }, ""},
          {"maximum displacement over the whole model", [](Req& r) { r.SetIdentifier("DISP_ABS"), r.SetOperation(Op::MAXIMUM); }, ""},
          {"energy stiffness over a set", [](Req& r) { r.SetIdentifier("ENERGY_STIFF_MEASURE"), r.SetDrivingRegion(rgnC_Region("Set-1")); },
           "Whole model must be selected for Energy stiffness measure design response."},
          {"energy stiffness over the whole model", [](Req& r) { r.SetIdentifier("ENERGY_STIFF_MEASURE"); }, ""},
          {"no step at all", [&](Req& r) { r.SetStepOptions({}); }, "At least one step / load case needs to be specified."},
          {"a stress without a step", [&](Req& r) {
             r.SetIdentifier("SIG_MISES"), r.SetDrivingRegion(rgnC_Region("Hot-Spot")), r.SetStepOptions({});
           }, "At least one step / load case needs to be specified."},
          {"the volume needs no step", [&](Req& r) { r.SetIdentifier("VOLUME"), r.SetStepOptions({}); }, ""},
          {"steps on the volume", [&](Req& r) { r.SetIdentifier("VOLUME"), withStep(r, Step("Step-1")); },
           "The identifier cannot be used with step and load case settings."},
          {"a step option without its step", [&](Req& r) { withStep(r, Step("")); },
           "At least one step / load case needs to be specified."},
          {"all steps with a load case", [&](Req& r) { withStep(r, Step("ALL", "LC-1")); },
           "If step is ALL then individual load cases cannot be specified."},
          {"a step with a load case", [&](Req& r) { withStep(r, Step("Step-1", "LC-1")); }, ""},
          {"lower mode 0", [&](Req& r) {
             kopC_StepOption s = Step("Step-1");
             s.SetUseAllModes(false), s.SetLowerMode(0);
             withStep(r, s);
           }, "Lower mode must be greater than zero."},
          {"upper mode below lower", [&](Req& r) {
             kopC_StepOption s = Step("Step-1");
             s.SetUseAllModes(false), s.SetLowerMode(3), s.SetUpperMode(2);
             withStep(r, s);
           }, "The lower mode must be less than or equal to the upper mode."},
          {"listed modes skip the range", [&](Req& r) {
             kopC_StepOption s = Step("Step-1");
             s.SetUseAllModes(false), s.SetLowerMode(0), s.SetModes(cow_List<std::int32_t>(std::vector<std::int32_t>{1, 2}));
             withStep(r, s);
           }, ""},
      },
      [&] {
        Req r = Request("STRAIN_ENERGY");
        withStep(r, Step("Step-1"));
        return r;
      });
}

TEST(KopRequests, AStepOptionNamesAStepOrOneOfTheStepSets) {
  kop_Start();
  EXPECT_EQ(omu_LiteralCount(kStepSetLiterals), 4);
  struct Case {
    const char* text;
    bool taken;
    bool isSet;
  };
  const Case cases[] = {
      {"ALL_STATIC_STEPS", true, true},  {"ALL_MODAL_STEPS", true, true}, {"ALL_NONLINEAR_STEPS", true, true},
      {"ALL_DAMAGE_STEPS", true, true},  {"Step-1", true, false},        {"ALL", true, false},
      {"ALL_STEPS", false, false},       {"ALL_static_steps", false, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    kopC_StepOption s;
    s.SetMultipleStep("Before");
    if (c.taken) {
      EXPECT_NO_THROW(s.SetMultipleStep(c.text));
      EXPECT_EQ(s.GetMultipleStep(), c.text);
      EXPECT_EQ(s.IsStepSet(), c.isSet);
      continue;
    }
    auto e = qmx_Catch<nex_CmdError>([&] { s.SetMultipleStep(c.text); });
    EXPECT_EQ(e.Message(), std::string("omu_PrimEnum(const cow_String&) - str not allowed: ") + c.text +
                               "  Permissible: ALL_STATIC_STEPS, ALL_MODAL_STEPS, ALL_NONLINEAR_STEPS, ALL_DAMAGE_STEPS");
    EXPECT_EQ(s.GetMultipleStep(), "Before");
  }
}

TEST(KopRequests, CombinedTermCountsByMethod) {
  kop_Start();
  auto terms = [](Comb& c, int n) {
    std::vector<cow_String> t;
    for (int i = 0; i < n; ++i) t.push_back("R-" + std::to_string(i));
    c.SetTerms(cow_List<cow_String>(t));
  };
  kop_CheckCases<Comb>(
      {
          {"add without terms", [&](Comb& c) { terms(c, 0); }, "At least 1 term must be specified."},
          {"add with 10", [&](Comb& c) { terms(c, 10); }, ""},
          {"add with 11", [&](Comb& c) { terms(c, 11); }, "No more than 10 terms may be specified."},
          {"subtract with 1", [&](Comb& c) { c.SetMethod(Method::SUBTRACT); }, "At least 2 terms must be specified."},
          {"divide with 3", [&](Comb& c) { c.SetMethod(Method::DIVIDE), terms(c, 3); }, "No more than 2 terms may be specified."},
          {"normalize with 5", [&](Comb& c) { c.SetMethod(Method::NORMALIZE), terms(c, 5); }, "No more than 4 terms may be specified."},
          {"sine with 2", [&](Comb& c) { c.SetMethod(Method::SINE), terms(c, 2); }, "1 term must be specified."},
          {"weighted add without weights", [&](Comb& c) { c.SetMethod(Method::WEIGHTED_ADD); },
           "The number of terms and weights must be equal."},
          {"weighted add with its weight", [&](Comb& c) {
             c.SetMethod(Method::WEIGHTED_ADD), c.SetWeights(cow_List<double>(std::vector<double>{2.0}));
           }, ""},
          {"cut-off below zero", [&](Comb& c) { c.SetMethod(Method::CUT_OFF), c.SetLowCutOff(-1); },
           "The low cut-off value must be greater than or equal to zero."},
          {"cut-off reversed", [&](Comb& c) { c.SetMethod(Method::CUT_OFF), c.SetLowCutOff(2), c.SetHighCutOff(1); },
           "The high cut-off must be greater than or equal to the low-cut off."},
          {"cut-off equal", [&](Comb& c) { c.SetMethod(Method::CUT_OFF), c.SetLowCutOff(2), c.SetHighCutOff(2); }, ""},
          {"low cut-off below zero is not tested for add", [&](Comb& c) { c.SetLowCutOff(-1); }, ""},
      },
      [&] {
        Comb c;
        terms(c, 1);
        return c;
      });
}

// Which task takes which restriction kind is checked for every kind in the command tests.
TEST(KopRestrictions, OwnRulesOfEachKind) {
  kop_Start();
  kopC_MemberSize size;
  size.SetMinThickness(0);
  EXPECT_EQ(kop_Failure([&] { size.AssertValid(); }), "Minimum thickness must be greater than zero.");
  size.SetMinThickness(2), size.SetMaxThickness(1);
  EXPECT_EQ(kop_Failure([&] { size.AssertValid(); }),
            "Maximum thickness must be greater than or equal to the minimum thickness.");
  kopC_DemoldControl demold;
  demold.SetDraftAngle(20);
  EXPECT_EQ(kop_Failure([&] { demold.AssertValid(); }), "");
  demold.SetTechnique(kopC_DemoldControl::TechniqueEnm::STAMP);
  EXPECT_EQ(kop_Failure([&] { demold.AssertValid(); }), "Draft angle cannot be specified with stamping.");
  demold.SetDraftAngle(20.5);
  EXPECT_EQ(kop_Failure([&] { demold.AssertValid(); }),
            "The draft angle must be greater than or equal to zero degrees and less than or equal to 20 degrees.");
  kopC_FixedRegion fixed;
  EXPECT_EQ(kop_Failure([&] { fixed.AssertValid(); }),
            "At least one direction needs to be specified to create fixed region restriction.");
  kopC_RotationalSymmetry rotation;
  rotation.SetAngle(2);
  EXPECT_EQ(kop_Failure([&] { rotation.AssertValid(); }), "The angle must be greater than 2 and less than 360 degrees.");
  kopC_GrowthRestriction growth;
  EXPECT_EQ(kop_Failure([&] { growth.AssertValid(); }), "Either growth or shrink value must be specified.");
  growth.SetShrink(-1);
  EXPECT_EQ(kop_Failure([&] { growth.AssertValid(); }), "Shrink value size must be greater than or equal to zero.");
  growth.SetShrink(0), growth.SetGrowth(-1);
  EXPECT_EQ(kop_Failure([&] { growth.AssertValid(); }), "Growth value must be greater than or equal to zero.");
  kopC_ThicknessControl thickness;
  EXPECT_EQ(kop_Failure([&] { thickness.AssertValid(); }),
            "At least one of the thickness restriction values need to be specified to create thickness control restriction.");
  thickness.SetMaxThickness(0);
  EXPECT_EQ(kop_Failure([&] { thickness.AssertValid(); }), "Maximum thickness must be greater than zero.");
  kopC_ShapeDemoldControl draw;
  draw.SetDrawAngle(45);
  EXPECT_EQ(kop_Failure([&] { draw.AssertValid(); }),
            "The draw angle must be greater than or equal to zero degrees and less than 45 degrees.");
  kopC_ShapeMemberSize shapeSize;
  shapeSize.SetSizeRestriction(kopC_ShapeMemberSize::SizeRestrictionEnm::NONE);
  EXPECT_EQ(kop_Failure([&] { shapeSize.AssertValid(); }), "The size restriction must be either minimum or maximum.");
  kopC_CyclicSymmetry cyclic;
  cyclic.SetAngle(360);
  EXPECT_EQ(kop_Failure([&] { cyclic.AssertValid(); }),
            "The angle must be greater than or equal to zero and less than 360 degrees.");
  kopC_TranslationalSymmetry translation;
  translation.SetTranslation(0);
  EXPECT_EQ(kop_Failure([&] { translation.AssertValid(); }), "The translation cannot be zero.");
  translation.SetTranslation(std::nan(""));  // an unset stored value reads back as NaN
  EXPECT_EQ(kop_Failure([&] { translation.AssertValid(); }), "The translation cannot be zero.");
  translation.SetTranslation(-2.0);
  EXPECT_EQ(kop_Failure([&] { translation.AssertValid(); }), "");
  kopC_DrillControl drill;
  drill.SetTechnique(kopC_DrillControl::TechniqueEnm::POINT);
  EXPECT_EQ(kop_Failure([&] { drill.AssertValid(); }),
            "When using the point technique you must specify a region that contains a vertex.");
}

// A topology task holding a strain-energy response, a volume response, an objective and a
// constraint, all valid.
kopC_TopologyTask FilledTask() {
  kopC_TopologyTask t;
  kopC_SingleTermDesignResponse energy, volume;
  kopC_SingleTermRequest energyRequest = Request("STRAIN_ENERGY");
  energyRequest.SetStepOptions(
      cow_List<Req::StepOptionHandle>(std::vector<Req::StepOptionHandle>{Req::StepOptionHandle(Step("Step-1"))}));
  energy.SetRequest(energyRequest);
  volume.SetRequest(Request("VOLUME"));
  t.GetDesignResponseContainer().Insert("Energy", energy);
  t.GetDesignResponseContainer().Insert("Volume", volume);
  kopC_Objective o;
  o.SetDesignResponse("Energy");
  kopC_OrimObjectiveFunction f;
  f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(
      std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle>{kopC_OrimObjectiveFunction::ObjectiveHandle(o)}));
  t.GetObjectiveFunctionContainer().Insert("Objective", f);
  kopC_OrimConstraint c;
  c.SetDesignResponse("Volume");
  c.SetRestrictionMethod(kopC_RestrictionMethodEnm::RELATIVE_LESS_THAN_EQUAL);
  c.SetRestrictionValue(0.3);
  t.GetConstraintContainer().Insert("Volume-30", c);
  return t;
}

kopC_OrimObjectiveFunction& Objective(kopC_Task& t) {
  return dynamic_cast<kopC_OrimObjectiveFunction&>(t.GetObjectiveFunctionContainer().Get("Objective"));
}
kopC_OrimConstraint& Constraint(kopC_Task& t) {
  return dynamic_cast<kopC_OrimConstraint&>(t.GetConstraintContainer().Get("Volume-30"));
}
void AddObjective(kopC_Task& t, const char* response, double reference = kopC_kUnset, bool suppressed = false) {
  kopC_Objective o;
  o.SetDesignResponse(response);
  o.SetReferenceValue(reference);
  o.SetSuppressed(suppressed);
  auto& f = Objective(t);
  std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle> list(f.GetObjectives().begin(), f.GetObjectives().end());
  list.emplace_back(o);
  f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(list));
}

TEST(KopTaskContents, ItemsAreCheckedAgainstTheirTask) {
  kop_Start();
  using T = kopC_TopologyTask;
  const auto condition = kopC_AlgorithmEnm::CONDITION_BASED_OPTIMIZATION;
  kop_CheckCases<T>(
      {
          {"a response with an error", [](T& t) {
             dynamic_cast<kopC_SingleTermDesignResponse&>(t.GetDesignResponseContainer().Get("Energy"))
                 .GetRequest().SetIdentifier("");
           }, "Identifier must be specified."},
          {"every objective suppressed", [](T& t) {
             auto& f = Objective(t);
             std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle> list(f.GetObjectives().begin(), f.GetObjectives().end());
             list[0].Get().SetSuppressed(true);
             f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(list));
           }, "The objective list must contain at least 1 unsuppressed entry."},
          {"two objectives, general", [](T& t) { AddObjective(t, "Volume"); }, ""},
          {"two objectives, condition-based", [&](T& t) { t.SetAlgorithm(condition), AddObjective(t, "Volume"); },
           "For a condition-based Optimization Task, only 1 entry is allowed in the \nobjective list when the target is "
           "MINIMIZE or MAXIMIZE. \n\nSuppress the other entries, or change the target, or use a \nCombined-Term Design "
           "Response, or use a general Optimization Task."},
          {"two objectives, condition-based, one suppressed",
           [&](T& t) { t.SetAlgorithm(condition), AddObjective(t, "Volume", kopC_kUnset, true); }, ""},
          {"two objectives, condition-based, minimize the maximum", [&](T& t) {
             t.SetAlgorithm(condition), AddObjective(t, "Volume"), Objective(t).SetTarget(kopC_TargetEnm::MINIMIZE_MAXIMUM);
           }, ""},
          {"reference values mixed, general", [](T& t) { AddObjective(t, "Volume", 2.0); },
           "For this type of Task, reference values must all be non-default values or they must all be DEFAULT."},
          {"reference value, condition-based", [&](T& t) {
             t.SetAlgorithm(condition), Objective(t).SetTarget(kopC_TargetEnm::MINIMIZE_MAXIMUM), AddObjective(t, "Volume", 2.0);
           }, "For this type of Task, reference values must be the default value."},
          {"an objective with a reference variable", [](T& t) {
             auto& f = Objective(t);
             std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle> list(f.GetObjectives().begin(), f.GetObjectives().end());
             list[0].Get().SetReferenceValueVariable("V-1");
             f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(list));
           }, "Reference value variable is not yet supported."},
          {"a constraint on a missing response", [](T& t) { Constraint(t).SetDesignResponse("Mass"); },
           "The specified design response cannot be used with the constraint"},
          {"relative volume 1", [](T& t) { Constraint(t).SetRestrictionValue(1.0); },
           "The relative value for constraints based on Volume or weight design responses in topology task should be "
           "greater than 0 or less than 1."},
          {"relative volume 0", [](T& t) { Constraint(t).SetRestrictionValue(0); },
           "The relative value for constraints based on Volume or weight design responses in topology task should be "
           "greater than 0 or less than 1."},
          {"absolute volume 1", [](T& t) {
             Constraint(t).SetRestrictionValue(1.0), Constraint(t).SetRestrictionMethod(kopC_RestrictionMethodEnm::ABSOLUTE_LESS_THAN_EQUAL);
           }, ""},
          {"relative strain energy 1", [](T& t) { Constraint(t).SetDesignResponse("Energy"), Constraint(t).SetRestrictionValue(1.0); }, ""},
          {"member size maximum, general", [](T& t) {
             kopC_MemberSize m;
             m.SetSizeRestriction(kopC_MemberSize::SizeRestrictionEnm::MAXIMUM);
             t.GetGeometricRestrictionContainer().Insert("Size", m);
           }, ""},
          {"member size maximum, condition-based", [&](T& t) {
             kopC_MemberSize m;
             m.SetSizeRestriction(kopC_MemberSize::SizeRestrictionEnm::MAXIMUM);
             t.GetGeometricRestrictionContainer().Insert("Size", m);
             t.SetAlgorithm(condition);
           }, "For condition-based Topology Optimization Tasks, the member size restriction can only be minimum."},
          {"a shape restriction in a topology task", [](T& t) {
             kopC_FixedRegion f;
             f.SetU1(true);
             t.GetGeometricRestrictionContainer().Insert("Fixed", f);
           }, "The specified geometric restriction cannot be used with this type of Task"},
          {"a frozen area", [](T& t) { t.GetGeometricRestrictionContainer().Insert("Frozen", kopC_FrozenArea()); }, ""},
          {"a restriction with an error", [](T& t) {
             kopC_MemberSize m;
             m.SetMinThickness(0);
             t.GetGeometricRestrictionContainer().Insert("Size", m);
           }, "Minimum thickness must be greater than zero."},
          {"a local stop condition in a topology task", [](T& t) {
             kopC_LocalStopCondition s;
             s.SetIdentifier("SIG_MISES"), s.SetReferenceFactor(0.9);
             t.GetStopConditionContainer().Insert("Stop", s);
           }, "Local Stop conditions are valid only for Shape optimization."},
          {"a variable without identifier", [](T& t) { t.GetVariableContainer().Insert("V", kopC_SingleVariable()); },
           "Identifier must be specified."},
          {"responses are checked before constraints", [](T& t) {
             Constraint(t).SetDesignResponse("Mass");
             dynamic_cast<kopC_SingleTermDesignResponse&>(t.GetDesignResponseContainer().Get("Volume"))
                 .GetRequest().SetOperation(Op::AVERAGE);
           }, "Operation cannot be AVERAGE for a design response."},
          {"the task's own rules come before its contents", [](T& t) {
             Constraint(t).SetDesignResponse("Mass"), t.SetNumIterations(3);
           }, "Number of design cycles must be greater than or equal to 10."},
      },
      FilledTask);
}

TEST(KopTaskContents, LocalStopConditionsBelongToShapeTasks) {
  kop_Start();
  kopC_LocalStopCondition s;
  s.SetIdentifier("SIG_MISES");
  EXPECT_EQ(kop_Failure([&] { s.AssertValid(); }), "Reference factor must be specified.");
  s.SetReferenceFactor(0.9);
  kopC_ShapeTask shape;
  shape.GetStopConditionContainer().Insert("Stop", s);
  EXPECT_EQ(kop_Failure([&] { shape.AssertValid(); }), "");
  kopC_SizingTask sizing;
  sizing.GetStopConditionContainer().Insert("Stop", s);
  EXPECT_EQ(kop_Failure([&] { sizing.AssertValid(); }), "Local Stop conditions are valid only for Shape optimization.");
}

}  // namespace
