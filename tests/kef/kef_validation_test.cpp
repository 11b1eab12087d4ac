// The engineering feature error table letter for letter, the rules of each kind in their order,
// and the enumerations with their literals.
#include <cmath>
#include <string>
#include <vector>

#include "kef/kefC_AssembledFastener.h"
#include "kef/kefC_ContourIntegral.h"
#include "kef/kefC_DataImperfection.h"
#include "kef/kefC_DebondVCCT.h"
#include "kef/kefC_DiscreteFastener.h"
#include "kef/kefC_FileImperfection.h"
#include "kef/kefC_HeatCapacitance.h"
#include "kef/kefC_InputImperfection.h"
#include "kef/kefC_ModelContext.h"
#include "kef/kefC_NonstructuralMass.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_PointMassInertia.h"
#include "kef/kefC_SpringToGround.h"
#include "kef/kefC_TwoPointSpring.h"
#include "kef/kefC_XFEMCrack.h"
#include "tests/kef/kef_test.h"

namespace {

class KefValidation : public ::testing::Test {
 protected:
  void SetUp() override { kef_Start(); }
};

TEST_F(KefValidation, TheErrorTableIsTheSystemsOwnText) {
  const std::vector<std::string> expected = {
      "Point mass/Inertia must contain mass or rotary inertia data.",
      "Diagonal terms of rotary inertia cannot possess negative magnitude",
      "Mid-side node parameter should lie between 0.0 and 1.0.",
      "Either the spring stiffness or dashpot coefficient, or both, must be selected for the spring/dashpot.",
      "The region for the spring/dashpot to ground is invalid.",
      "The degree of freedom for the spring/dashpot to ground must be specified.",
      "At least one pair of points must be selected for the spring/dashpot.",
      "The degree of freedom at point 1 must be specified.",
      "The degree of freedom at point 2 must be specified.",
      "The dashpot coefficient must be greater than zero.",
      "The spring stiffness must be greater than zero.",
      "Nonstructural mass data cannot possess negative magnitude.",
      "Influence radius must be specified and must be greater than zero.",
      "Search radius must be greater than zero.",
      "Physical radius must be specified and must be greater than zero.",
      "Maximum layers must be greater than zero.",
      "A connector section must be specified.",
      "Specified MPC section not yet supported for point fasteners. Point fastener supports only beam type MPC section "
      "from available MPC sections.",
      "The singularityCalcRadius must be greater than zero.",
      "The length of nodeId must match other array lengths.",
      "The length of hasCrackFront must match other array lengths.",
      "The length of crackPlaneDist must match other array lengths.",
      "The length of crackFrontDist must match other array lengths.",
      "The crackLocation must be specified when crack growth is not allowed.",
      "Suppressed cracks cannot be edited.",
      "Suppressed inertias cannot be edited.",
      "Suppressed springs/dashpots cannot be edited.",
      "Suppressed fasteners cannot be edited.",
      "A template model must be specified.",
      "A control point set must be specified.",
      "A model prefix string must be specified.",
      "The model prefix string cannot contain an underscore.",
      "The number of template model surfaces must match the number of assignment model surfaces.",
      "At least one template model surface and one assignment model surface must be specified.",
      "The template model and assignment model surface names cannot be empty/blank.",
      "Point mass/inertia cannot contain both isotropic and anisotropic mass values.",
      "An interaction must be specified.",
      "An initiation step must be specified.",
      "Print frequency to DAT file value cannot be negative.",
      "The interaction specified in the Debond VCCT crack must be Tessar/Standard contact pair interaction",
      "The step specified in the Debond VCCT crack must be an Tessar/Standard step",
      "The target surface cannot be an edge based for Point fastners.",
      "Dummy",
  };
  ASSERT_EQ(expected.size(), 43u);
  for (int code = 0; code < static_cast<int>(expected.size()); ++code) {
    SCOPED_TRACE(code);
    EXPECT_EQ(kefC_ErrorMessage(static_cast<kefC_ErrorEnm>(code)), expected[code]);
    auto e = qmx_Catch<nex_PrimError>([&] { kefC_Assert(false, static_cast<kefC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), expected[code]);
    EXPECT_STREQ(e.File(), "QMXOdbKefC.m/src/kefC_assert");
  }
  for (int outside : {-1, 43}) EXPECT_STREQ(kefC_ErrorMessage(static_cast<kefC_ErrorEnm>(outside)), "");
}

TEST_F(KefValidation, PointMassNeedsMassOrInertiaButNotBothKindsOfMass) {
  kef_CheckCases<kefC_PointMassInertia>(
      kefC_PointMassInertia(),
      {
          {"nothing at all", [](auto&) {}, "Point mass/Inertia must contain mass or rotary inertia data."},
          {"a mass", [](auto& p) { p.SetMass(1.0); }, ""},
          {"an anisotropic mass", [](auto& p) { p.SetMass3(0.5); }, ""},
          {"an off-diagonal inertia only", [](auto& p) { p.SetI13(-0.5); }, ""},
          {"a negative i22", [](auto& p) { p.SetMass(1.0), p.SetI22(-1e-9); },
           "Diagonal terms of rotary inertia cannot possess negative magnitude"},
          {"a negative i33 alone is inertia data", [](auto& p) { p.SetI33(-2.0); },
           "Diagonal terms of rotary inertia cannot possess negative magnitude"},
          {"mass and mass2", [](auto& p) { p.SetMass(1.0), p.SetMass2(1.0); },
           "Point mass/inertia cannot contain both isotropic and anisotropic mass values."},
          {"a mass that is not a number", [](auto& p) { p.SetMass(std::nan("")); },
           "Point mass/Inertia must contain mass or rotary inertia data."},
          {"a number beside one that is not", [](auto& p) { p.SetI11(1.0), p.SetMass(std::nan("")); },
           "Point mass/Inertia must contain mass or rotary inertia data."},
          {"an off-diagonal term that is not a number", [](auto& p) { p.SetMass(1.0), p.SetI23(std::nan("")); },
           "Point mass/Inertia must contain mass or rotary inertia data."},
          {"negative inertia is reported before the mass mix", [](auto& p) { p.SetMass(1.0), p.SetMass1(1.0), p.SetI11(-1.0); },
           "Diagonal terms of rotary inertia cannot possess negative magnitude"},
      });
}

TEST_F(KefValidation, SpringsCheckWhatIsAppliedThenTheirPoints) {
  kef_CheckCases<kefC_SpringToGround>(
      kefC_SpringToGround(),
      {
          {"nothing applied, before anything else",
           [](auto& s) { s.SetSpringStiffness(-1.0), s.SetDashpotCoeff(-1.0); },
           "Either the spring stiffness or dashpot coefficient, or both, must be selected for the spring/dashpot."},
          {"a spring without stiffness", [](auto& s) { s.SetApplySpring(true); }, "The spring stiffness must be greater than zero."},
          {"a dashpot without coefficient", [](auto& s) { s.SetApplyDashpot(true), s.SetSpringStiffness(-4.0); },
           "The dashpot coefficient must be greater than zero."},
          {"spring checked before dashpot", [](auto& s) { s.SetApplySpring(true), s.SetApplyDashpot(true); },
           "The spring stiffness must be greater than zero."},
          {"no region", [](auto& s) { s.SetApplySpring(true), s.SetSpringStiffness(10.0), s.SetDof1(1); },
           "The region for the spring/dashpot to ground is invalid."},
          {"no degree of freedom",
           [](auto& s) { s.SetApplySpring(true), s.SetSpringStiffness(10.0), s.SetRegion(rgnC_Region("Set-1")); },
           "The degree of freedom for the spring/dashpot to ground must be specified."},
          {"complete",
           [](auto& s) { s.SetApplyDashpot(true), s.SetDashpotCoeff(0.1), s.SetRegion(rgnC_Region("Set-1")), s.SetDof1(3); },
           ""},
      });
  kefC_TwoPointSpring two;
  two.SetApplySpring(true);
  two.SetSpringStiffness(5.0);
  const auto pair = cow_List<rgnC_Region>(std::vector<rgnC_Region>{rgnC_Region("A"), rgnC_Region("B")});
  kef_CheckCases<kefC_TwoPointSpring>(
      two, {
               {"no pair", [](auto&) {}, "At least one pair of points must be selected for the spring/dashpot."},
               {"half a pair", [](auto& s) { s.SetRegionPairs(cow_List<rgnC_Region>(std::vector<rgnC_Region>{rgnC_Region("A")})); },
                "At least one pair of points must be selected for the spring/dashpot."},
               {"along the nodal line point 1 still names its degree of freedom", [&](auto& s) { s.SetRegionPairs(pair); },
                "The degree of freedom at point 1 must be specified."},
               {"along the nodal line point 2 still names its degree of freedom",
                [&](auto& s) { s.SetRegionPairs(pair), s.SetDof1(1); }, "The degree of freedom at point 2 must be specified."},
               {"along the nodal line with both", [&](auto& s) { s.SetRegionPairs(pair), s.SetDof1(1), s.SetDof2(1); }, ""},
               {"fixed degrees of freedom, none at point 1",
                [&](auto& s) { s.SetRegionPairs(pair), s.SetAxis(kefC_SpringAxisTypeEnum::FIXED_DOF), s.SetDof2(2); },
                "The degree of freedom at point 1 must be specified."},
               {"fixed degrees of freedom, none at point 2",
                [&](auto& s) { s.SetRegionPairs(pair), s.SetAxis(kefC_SpringAxisTypeEnum::FIXED_DOF), s.SetDof1(2); },
                "The degree of freedom at point 2 must be specified."},
               {"fixed degrees of freedom at both points",
                [&](auto& s) { s.SetRegionPairs(pair), s.SetAxis(kefC_SpringAxisTypeEnum::FIXED_DOF), s.SetDof1(1), s.SetDof2(6); },
                ""},
           });
}

TEST_F(KefValidation, FastenersCheckTheSharedRadiusFirst) {
  kefC_PointFastener point;
  point.SetSectionName("ConnSect-1");
  kef_CheckCases<kefC_PointFastener>(
      point,
      {
          {"defaults with a section", [](auto&) {}, ""},
          {"a zero influence radius before everything else", [](auto& f) { f.SetInfluenceRadius(0.0), f.SetSearchRadius(-1.0); },
           "Influence radius must be specified and must be greater than zero."},
          {"a distance", [](auto& f) { f.SetInfluenceRadius(2.5); }, ""},
          {"the whole surface again", [](auto& f) { f.SetInfluenceRadius(1.0), f.SetInfluenceRadius(kefC_WholeSurfaceEnum::WHOLE_SURFACE); }, ""},
          {"search radius", [](auto& f) { f.SetSearchRadius(0.0), f.SetPhysicalRadius(0.0); }, "Search radius must be greater than zero."},
          {"physical radius", [](auto& f) { f.SetPhysicalRadius(-0.1); }, "Physical radius must be specified and must be greater than zero."},
          {"maximum layers", [](auto& f) { f.SetMaximumLayers(0); }, "Maximum layers must be greater than zero."},
          {"one layer", [](auto& f) { f.SetMaximumLayers(1); }, ""},
          {"a connector needs its section", [](auto& f) { f.SetSectionName(""); }, "A connector section must be specified."},
          {"a beam MPC needs its section as well",
           [](auto& f) { f.SetSectionName(""), f.SetConnectionType(kefC_PointAdherendEnum::BEAM_MPC); },
           "A connector section must be specified."},
          {"a beam MPC with its section", [](auto& f) { f.SetConnectionType(kefC_PointAdherendEnum::BEAM_MPC); }, ""},
      });

  kef_CheckCases<kefC_DiscreteFastener>(
      kefC_DiscreteFastener(), {{"defaults", [](auto&) {}, ""},
                                {"a negative radius", [](auto& f) { f.SetInfluenceRadius(-1.0); },
                                 "Influence radius must be specified and must be greater than zero."}});
}

TEST_F(KefValidation, AssembledFastenerRulesInOrder) {
  kefC_AssembledFastener ok;
  ok.SetTemplateModel("Bolt");
  ok.SetControlSet("CP");
  ok.SetPropertyPrefix("M8");
  ok.SetTemplateSurfaces(cow_List<cow_String>(std::vector<cow_String>{"Head", "Nut"}));
  ok.SetAssignedSurfaces(cow_List<cow_String>(std::vector<cow_String>{"Plate-1", "Plate-2"}));
  using L = std::vector<cow_String>;
  kef_CheckCases<kefC_AssembledFastener>(
      ok, {
              {"complete", [](auto&) {}, ""},
              {"no template model", [](auto& f) { f.SetTemplateModel(""), f.SetControlSet(""); }, "A template model must be specified."},
              {"no control set", [](auto& f) { f.SetControlSet(""), f.SetPropertyPrefix(""); }, "A control point set must be specified."},
              {"no prefix", [](auto& f) { f.SetPropertyPrefix(""); }, "A model prefix string must be specified."},
              {"an underscore", [](auto& f) { f.SetPropertyPrefix("M8_bolt"); }, "The model prefix string cannot contain an underscore."},
              {"counts differ", [](auto& f) { f.SetAssignedSurfaces(cow_List<cow_String>(L{"Plate-1"})); },
               "The number of template model surfaces must match the number of assignment model surfaces."},
              {"no surfaces", [](auto& f) { f.SetAssignedSurfaces({}), f.SetTemplateSurfaces({}); },
               "At least one template model surface and one assignment model surface must be specified."},
              {"a blank template surface", [](auto& f) { f.SetTemplateSurfaces(cow_List<cow_String>(L{"Head", "  "})); },
               "The template model and assignment model surface names cannot be empty/blank."},
              {"an empty assigned surface", [](auto& f) { f.SetAssignedSurfaces(cow_List<cow_String>(L{"", "Plate-2"})); },
               "The template model and assignment model surface names cannot be empty/blank."},
              {"the shared rule comes first", [](auto& f) { f.SetInfluenceRadius(0.0), f.SetTemplateModel(""); },
               "Influence radius must be specified and must be greater than zero."},
          });
}

TEST_F(KefValidation, CracksCheckTheirOwnData) {
  kef_CheckCases<kefC_ContourIntegral>(
      kefC_ContourIntegral(),
      {
          {"middle", [](auto&) {}, ""},
          {"zero", [](auto& c) { c.SetMidNodePosition(0.0); }, ""},
          {"one", [](auto& c) { c.SetMidNodePosition(1.0); }, ""},
          {"below", [](auto& c) { c.SetMidNodePosition(-0.01); }, "Mid-side node parameter should lie between 0.0 and 1.0."},
          {"above", [](auto& c) { c.SetMidNodePosition(1.25); }, "Mid-side node parameter should lie between 0.0 and 1.0."},
      });
  kefC_XFEMCrack x;
  x.SetElemId(cow_List<std::int32_t>(std::vector<std::int32_t>{1, 2}));
  x.SetNodeId(cow_List<std::int32_t>(std::vector<std::int32_t>{10, 20}));
  x.SetHasCrackFront(cow_List<std::int32_t>(std::vector<std::int32_t>{0, 1}));
  x.SetCrackPlaneDist(cow_List<double>(std::vector<double>{0.1, 0.2}));
  x.SetCrackFrontDist(cow_List<double>(std::vector<double>{0.3, 0.4}));
  const cow_List<std::int32_t> one(std::vector<std::int32_t>{1});
  const cow_List<double> oneD(std::vector<double>{1.0});
  kef_CheckCases<kefC_XFEMCrack>(
      x, {
             {"matching arrays", [](auto&) {}, ""},
             {"radius", [](auto& c) { c.SetSingularityCalcRadius(0.0), c.SetNodeId({}); },
              "The singularityCalcRadius must be greater than zero."},
             {"nodeId first", [&](auto& c) { c.SetNodeId(one), c.SetCrackFrontDist(oneD); },
              "The length of nodeId must match other array lengths."},
             {"hasCrackFront", [&](auto& c) { c.SetHasCrackFront(one), c.SetCrackPlaneDist(oneD); },
              "The length of hasCrackFront must match other array lengths."},
             {"crackPlaneDist", [&](auto& c) { c.SetCrackPlaneDist(oneD), c.SetCrackFrontDist(oneD); },
              "The length of crackPlaneDist must match other array lengths."},
             {"crackFrontDist", [&](auto& c) { c.SetCrackFrontDist(oneD); }, "The length of crackFrontDist must match other array lengths."},
             {"no location without growth", [](auto& c) { c.SetAllowCrackGrowth(false); },
              "The crackLocation must be specified when crack growth is not allowed."},
             {"a location without growth", [](auto& c) { c.SetAllowCrackGrowth(false), c.SetCrackLocation(rgnC_Region("Crack")); }, ""},
         });
  kefC_DebondVCCT d;
  d.SetStepName("Step-1");
  d.SetSurfToSurfInteraction("Int-1");
  kef_CheckCases<kefC_DebondVCCT>(
      d, {
             {"complete", [](auto&) {}, ""},
             {"no interaction", [](auto& v) { v.SetSurfToSurfInteraction(""), v.SetStepName(""); }, "An interaction must be specified."},
             {"no step", [](auto& v) { v.SetStepName(""), v.SetPrintFreqVal(-1); }, "An initiation step must be specified."},
             {"negative frequency", [](auto& v) { v.SetPrintFreqVal(-1); }, "Print frequency to DAT file value cannot be negative."},
             {"zero frequency", [](auto& v) { v.SetPrintFreqVal(0); }, ""},
         });
}

TEST_F(KefValidation, NonstructuralMassAndKindsWithoutRules) {
  kef_CheckCases<kefC_NonstructuralMass>(
      kefC_NonstructuralMass(), {{"zero", [](auto&) {}, ""},
                                 {"negative", [](auto& m) { m.SetMagnitude(-0.5); },
                                  "Nonstructural mass data cannot possess negative magnitude."}});
  EXPECT_NO_THROW(kefC_HeatCapacitance().AssertValid());
  EXPECT_NO_THROW(kefC_FileImperfection().AssertValid());
  EXPECT_NO_THROW(kefC_InputImperfection().AssertValid());
  EXPECT_NO_THROW(kefC_DataImperfection().AssertValid());
}

template <class E>
std::vector<std::string> Literals() {
  std::vector<std::string> out;
  for (int i = 0; omu_PrimEnum<E, 1>::Name(i); ++i) {
    out.emplace_back(omu_PrimEnum<E, 1>::Name(i));
    EXPECT_EQ(static_cast<int>(omu_PrimEnum<E, 1>::Value(i)), i) << out.back();
  }
  return out;
}

TEST_F(KefValidation, EnumerationsListTheirLiteralsInOrderCountingFromZero) {
  using V = std::vector<std::string>;
  EXPECT_EQ(Literals<kefC_ForwardSenseEnm>(), (V{"REVERSE", "FORWARD"}));
  EXPECT_EQ(Literals<kefC_collapsedElementAtTipEnm>(), (V{"NONE", "SINGLE_NODE", "DUPLICATE_NODES"}));
  EXPECT_EQ(Literals<kefC_extensionVectorMethodEnm>(), (V{"CRACK_NORMAL", "Q_VECTORS"}));
  EXPECT_EQ(Literals<kefC_DebondAmplitudeEnm>(), (V{"STEP", "RAMP"}));
  EXPECT_EQ(Literals<kefC_AllEnum>(), (V{"ALL"}));
  EXPECT_EQ(Literals<kefC_AttachmentMethodEnum>(), (V{"FACETOFACE", "EDGETOFACE", "FACETOEDGE", "EDGETOEDGE"}));
  EXPECT_EQ(Literals<kefC_AxisEnum>(), (V{"AXIS_1", "AXIS_2", "AXIS_3"}));
  EXPECT_EQ(Literals<kefC_BehaviorDefinitionEnum>(), (V{"NONLINEAR", "LINEAR"}));
  EXPECT_EQ(Literals<kefC_CouplingEnum>(), (V{"CONTINUUM", "STRUCTURAL"}));
  EXPECT_EQ(Literals<kefC_DefaultEnum>(), (V{"DEFAULT"}));
  EXPECT_EQ(Literals<kefC_DiscreteAdherendEnum>(), (V{"CONNECTOR", "SPRING_RIGID_SPRING", "RIGID_SPRING_RIGID"}));
  EXPECT_EQ(Literals<kefC_DistributionEnum>(), (V{"MASS_PROPORTIONAL", "VOLUME_PROPORTIONAL"}));
  EXPECT_EQ(Literals<kefC_ModelEnum>(), (V{"MODEL"}));
  EXPECT_EQ(Literals<kefC_OrientMethodEnum>(), (V{"NORMALS", "CSYS"}));
  EXPECT_EQ(Literals<kefC_PointAdherendEnum>(), (V{"CONNECTOR", "BEAM_MPC"}));
  EXPECT_EQ(Literals<kefC_RotationalCouplingEnum>(), (V{"ROTATIONAL_CONTINUUM", "ROTATIONAL_STRUCTURAL"}));
  EXPECT_EQ(Literals<kefC_SpringAxisTypeEnum>(), (V{"NODAL_LINE", "FIXED_DOF"}));
  EXPECT_EQ(Literals<kefC_SystemEnum>(), (V{"CARTESIAN", "CYLINDRICAL", "SPHERICAL"}));
  EXPECT_EQ(Literals<kefC_UnitsEnum>(), (V{"TOTAL_MASS", "MASS_PER_VOLUME", "MASS_PER_AREA", "MASS_PER_LENGTH"}));
  EXPECT_EQ(Literals<kefC_WeightingMethodEnum>(), (V{"UNIFORM", "LINEAR", "QUADRATIC", "CUBIC"}));
  EXPECT_EQ(Literals<kefC_WholeSurfaceEnum>(), (V{"WHOLE_SURFACE"}));
}

TEST_F(KefValidation, RulesJudgedAgainstTheModelFollowTheFeaturesOwn) {
  kefC_ModelContext model;
  model.isBeamMpcSection = [](const cow_String& s) { return s == "Beam-MPC"; };
  model.isEdgeBased = [](const rgnC_Region& r) { return r.Name() == "Edges"; };
  model.isStandardContactPair = [](const cow_String& i) { return i == "Pair-1"; };
  model.isStandardStep = [](const cow_String& s) { return s == "Static"; };
  auto message = [](const std::function<void()>& fn) { return qmx_Catch<nex_PrimError>(fn).Message(); };

  kefC_PointFastener f;
  f.SetConnectionType(kefC_PointAdherendEnum::BEAM_MPC);
  f.SetSectionName("Tie-MPC");
  f.SetTargetSurface(rgnC_Region("Edges"));
  f.SetPhysicalRadius(0.0);
  EXPECT_EQ(message([&] { kefC_AssertInModel(f, model); }), "Physical radius must be specified and must be greater than zero.");
  f.SetPhysicalRadius(1.0);
  EXPECT_EQ(message([&] { kefC_AssertInModel(f, model); }),
            "Specified MPC section not yet supported for point fasteners. Point fastener supports only beam type MPC "
            "section from available MPC sections.");
  f.SetSectionName("Beam-MPC");
  EXPECT_EQ(message([&] { kefC_AssertInModel(f, model); }), "The target surface cannot be an edge based for Point fastners.");
  f.SetTargetSurface(rgnC_Region("Faces"));
  EXPECT_NO_THROW(kefC_AssertInModel(f, model));
  f.SetConnectionType(kefC_PointAdherendEnum::CONNECTOR);  // a connector section is not an MPC section
  EXPECT_NO_THROW(kefC_AssertInModel(f, model));

  kefC_DebondVCCT d;
  d.SetSurfToSurfInteraction("General");
  d.SetStepName("Dynamic");
  EXPECT_EQ(message([&] { kefC_AssertInModel(d, model); }),
            "The interaction specified in the Debond VCCT crack must be Tessar/Standard contact pair interaction");
  d.SetSurfToSurfInteraction("Pair-1");
  EXPECT_EQ(message([&] { kefC_AssertInModel(d, model); }),
            "The step specified in the Debond VCCT crack must be an Tessar/Standard step");
  d.SetStepName("Static");
  EXPECT_NO_THROW(kefC_AssertInModel(d, model));
  d.SetStepName("");
  EXPECT_EQ(message([&] { kefC_AssertInModel(d, model); }), "An initiation step must be specified.");
  d.SetSuppress(true);
  EXPECT_NO_THROW(kefC_AssertInModel(d, model));
}

}  // namespace
