// The constraint error table letter for letter, the rules of each kind in order, and the
// enumerations with their literals.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "kco/kcoC_AdjustPoints.h"
#include "kco/kcoC_Coupling.h"
#include "kco/kcoC_DdbDisplayBody.h"
#include "kco/kcoC_DisplayBody.h"
#include "kco/kcoC_EmbeddedRegion.h"
#include "kco/kcoC_Equation.h"
#include "kco/kcoC_MPC.h"
#include "kco/kcoC_ModelContext.h"
#include "kco/kcoC_RigidBody.h"
#include "kco/kcoC_ShellSolidCoupling.h"
#include "kco/kcoC_Tie.h"
#include "tests/kco/kco_test.h"

namespace {

const char* const kEquationTerms = "Equation must have two or more terms.";
const char* const kDof = "Degree of freedom must be greater than zero.";
const char* const kMainSurface = "The main portion of the Tie constraint must be a surface.";
const char* const kDistributing =
    "For the distributing constraint, all displacement degrees of freedom\nneed to be constrained.";
const char* const kDisplayBody = "The display body constraint must have a valid instance.";

class KcoValidation : public ::testing::Test {
 protected:
  void SetUp() override { kco_Start(); }
};

TEST_F(KcoValidation, TheErrorTableIsTheSystemsOwnText) {
  const std::vector<std::string> expected = {
      "Equation must have two or more terms.",
      "The Cosntraint container is empty.",
      "Constraint does not exist.",
      "Unable to copy unknown constraint type.",
      "Degree of freedom must be greater than zero.",
      "The main portion of the Tie constraint must be a surface.",
      "Set to adjust for Tie-constraint overclosure is invalid.",
      "Rotational DOF's cannot be tied in an Explicit analysis.",
      "For the distributing constraint, all displacement degrees of freedom\nneed to be constrained.",
      "The display body constraint must have a valid instance.",
  };
  for (int code = 0; code < static_cast<int>(expected.size()); ++code) {
    SCOPED_TRACE(code);
    EXPECT_EQ(kcoC_ErrorMessage(static_cast<kcoC_ErrorEnm>(code)), expected[code]);
    auto e = qmx_Catch<nex_PrimError>([&] { kcoC_Assert(false, static_cast<kcoC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), expected[code]);
    EXPECT_STREQ(e.File(), "QMXOdbKcoC.m/src/kcoC_assert");
  }
  EXPECT_NO_THROW(kcoC_Assert(true, kcoC_EquationTooFewTerms));
  for (int outside : {-1, 10, 99}) {
    EXPECT_STREQ(kcoC_ErrorMessage(static_cast<kcoC_ErrorEnm>(outside)), "");
    auto e = qmx_Catch<nex_PrimError>([&] { kcoC_Assert(false, static_cast<kcoC_ErrorEnm>(outside)); });
    EXPECT_EQ(e.Message(), "");
  }
}

kcoC_Equation EquationOf(const std::vector<std::int32_t>& dofs) {
  std::vector<cow_COW<kcoC_EquationTerm, cow_Direct<kcoC_EquationTerm>>> terms;
  for (std::int32_t dof : dofs) terms.emplace_back(kcoC_EquationTerm(1.0, "Set-" + std::to_string(dof), dof));
  kcoC_Equation eq;
  eq.SetTerms(cow_List<cow_COW<kcoC_EquationTerm, cow_Direct<kcoC_EquationTerm>>>(std::move(terms)));
  return eq;
}

TEST_F(KcoValidation, EquationNeedsTwoTermsAndEachTermAPositiveDegreeOfFreedom) {
  kco_ExpectFailure(EquationOf({}), kEquationTerms);
  kco_ExpectFailure(EquationOf({1}), kEquationTerms);
  kco_ExpectFailure(EquationOf({0}), kEquationTerms);  // the count is checked before the terms
  EXPECT_NO_THROW(EquationOf({1, 6}).AssertValid());
  kco_ExpectFailure(EquationOf({1, 0}), kDof);
  kco_ExpectFailure(EquationOf({-3, 2, 1}), kDof);
  kco_ExpectFailure(kcoC_EquationTerm(2.5, "Set-1", 0), kDof);
  EXPECT_NO_THROW(kcoC_EquationTerm(2.5, "Set-1", 1).AssertValid());
  kcoC_Equation suppressed = EquationOf({0});
  suppressed.SetSuppress(true);
  EXPECT_NO_THROW(suppressed.AssertValid());
}

TEST_F(KcoValidation, DistributingCouplingConstrainsEveryDisplacementButNotRotations) {
  struct Case {
    const char* what;
    std::function<void(kcoC_Coupling&)> change;
    bool fails;
  };
  const std::vector<Case> cases = {
      {"u1 free", [](kcoC_Coupling& c) { c.SetU1(false); }, true},
      {"u2 free", [](kcoC_Coupling& c) { c.SetU2(false); }, true},
      {"u3 free", [](kcoC_Coupling& c) { c.SetU3(false); }, true},
      {"all rotations free", [](kcoC_Coupling& c) { c.SetUr1(false), c.SetUr2(false), c.SetUr3(false); }, false},
      {"nothing free", [](kcoC_Coupling&) {}, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    kcoC_Coupling coupling;
    coupling.SetCouplingType(kcoC_CouplingTypeEnm::DISTRIBUTING);
    c.change(coupling);
    if (c.fails) kco_ExpectFailure(coupling, kDistributing);
    else EXPECT_NO_THROW(coupling.AssertValid());
    // The rule belongs to distributing couplings only.
    for (auto other : {kcoC_CouplingTypeEnm::KINEMATIC, kcoC_CouplingTypeEnm::STRUCTURAL, kcoC_CouplingTypeEnm::UNIFORM_NDOF}) {
      coupling.SetCouplingType(other);
      EXPECT_NO_THROW(coupling.AssertValid());
    }
    coupling.SetCouplingType(kcoC_CouplingTypeEnm::DISTRIBUTING);
    coupling.SetSuppress(true);
    EXPECT_NO_THROW(coupling.AssertValid());
  }
}

TEST_F(KcoValidation, DisplayBodyAndShellSolidCouplingNeedTheirInstanceAndFace) {
  kcoC_DisplayBody body;
  kco_ExpectFailure(body, kDisplayBody);
  body.SetInstanceId(-4);
  EXPECT_NO_THROW(body.AssertValid());
  body.SetInstanceId(7);
  EXPECT_NO_THROW(body.AssertValid());

  kcoC_ShellSolidCoupling ssc;
  ssc.SetShellEdge(rgnC_Region("Edges"));
  kco_ExpectFailure(ssc, kMainSurface);  // the tie's message, kept on purpose
  ssc.SetSolidFace(rgnC_Region("Faces"));
  EXPECT_NO_THROW(ssc.AssertValid());
}

TEST_F(KcoValidation, KindsWithoutRulesOfTheirOwnAcceptTheirDefaults) {
  EXPECT_NO_THROW(kcoC_Tie().AssertValid());
  EXPECT_NO_THROW(kcoC_MPC().AssertValid());
  EXPECT_NO_THROW(kcoC_RigidBody().AssertValid());
  EXPECT_NO_THROW(kcoC_EmbeddedRegion().AssertValid());
  EXPECT_NO_THROW(kcoC_DdbDisplayBody().AssertValid());
  EXPECT_NO_THROW(kcoC_AdjustPoints().AssertValid());
  EXPECT_NO_THROW(kcoC_Coupling().AssertValid());
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

TEST_F(KcoValidation, EnumerationsListTheirLiteralsInOrderCountingFromZero) {
  using V = std::vector<std::string>;
  EXPECT_EQ(Literals<kcoC_PosToleranceEnm>(), (V{"COMPUTED", "SPECIFIED"}));
  EXPECT_EQ(Literals<kcoC_DefaultOrValueEnm>(), (V{"DEFAULT", "SPECIFIED"}));
  EXPECT_EQ(Literals<kcoC_TieConstraintEnforcementEnm>(), (V{"SOLVER_DEFAULT", "NODE_TO_SURFACE", "SURFACE_TO_SURFACE"}));
  EXPECT_EQ(Literals<kcoC_CouplingTypeEnm>(), (V{"KINEMATIC", "DISTRIBUTING", "STRUCTURAL", "UNIFORM_NDOF"}));
  EXPECT_EQ(Literals<kcoC_InfluenceRadiusEnm>(), (V{"WHOLE_SURFACE"}));
  EXPECT_EQ(Literals<kcoC_WeightingMethodEnm>(), (V{"UNIFORM", "LINEAR", "QUADRATIC", "CUBIC"}));
  EXPECT_EQ(Literals<kcoC_RotationalCouplingTypeEnm>(), (V{"ROTATIONAL_CONTINUUM", "ROTATIONAL_STRUCTURAL"}));
  EXPECT_EQ(Literals<kcoC_UniformConstraintEnm>(),
            (V{"NONE", "WARP_AMPLITUDE", "PORE_PRESSURE", "ELECTRIC_POTENTIAL", "CONNECTOR_MATERIAL_FLOW", "DOF_TEMPERATURE",
               "SLURRY_CONCENTRATION", "ELECTROLYTE_ELECTRIC_POTENTIAL", "ION_CONCENTRATION", "SPECIES_CONCENTRATION"}));
  EXPECT_EQ(Literals<kcoC_MPCTypeEnum>(), (V{"BEAM_MPC", "ELBOW_MPC", "PIN_MPC", "LINK_MPC", "TIE_MPC", "USER_MPC"}));
  EXPECT_EQ(Literals<kcoC_UserModeEnum>(), (V{"DOF_MODE_MPC", "NODE_MODE_MPC"}));
  EXPECT_EQ(Literals<kcoC_EmbeddedToleranceEnm>(), (V{"ABSOLUTE", "FRACTIONAL", "BOTH"}));

  // Lookups are exact: the lower-case spelling is refused with the enumeration's message.
  auto e = qmx_Catch<nex_CmdError>([] { omu_PrimEnum<kcoC_CouplingTypeEnm, 1>(cow_String("distributing")); });
  EXPECT_EQ(e.Message().rfind("omu_PrimEnum(const cow_String&) - str not allowed: distributing  Permissible: ", 0), 0u);
}

TEST_F(KcoValidation, TieRulesJudgedAgainstTheModelComeInTheOrderOfTheirCodes) {
  kcoC_Tie tie;
  tie.SetMaster(rgnC_Region("Edge-1"));
  tie.SetTiedNset(rgnC_Region("Adjust-1"));
  kcoC_ModelContext model;
  EXPECT_NO_THROW(kcoC_AssertInModel(tie, model));  // nothing asked, nothing refused
  model.explicitAnalysis = true;
  model.isSurface = [](const rgnC_Region& r) { return r.Name() != "Edge-1"; };
  model.isValidAdjustSet = [](const rgnC_Region& r) { return r.Name() == "Good"; };
  auto message = [&] { return qmx_Catch<nex_PrimError>([&] { kcoC_AssertInModel(tie, model); }).Message(); };
  EXPECT_EQ(message(), kMainSurface);
  tie.SetMaster(rgnC_Region("Surf-1"));
  EXPECT_EQ(message(), "Set to adjust for Tie-constraint overclosure is invalid.");
  tie.SetAdjust(false);  // the set matters only when adjusting
  EXPECT_EQ(message(), "Rotational DOF's cannot be tied in an Explicit analysis.");
  tie.SetTieRotations(false);
  EXPECT_NO_THROW(kcoC_AssertInModel(tie, model));
  tie.SetTieRotations(true);
  tie.SetSuppress(true);
  EXPECT_NO_THROW(kcoC_AssertInModel(tie, model));
}

// A constraint kind that no module registered.
class UnknownKind : public kcoC_Constraint {
 public:
  void DBWrite(const cls_WriteVisitor&) const override {}
  kcoC_Constraint* DoCopy() const override { return new UnknownKind(*this); }
  void AssertValid() const override {}
  unsigned ClassTypeId() const override { return fw_TypeId(720, 99); }

 protected:
  bool SameAs(const kcoC_Constraint&) const override { return true; }
};

TEST_F(KcoValidation, OnlyKnownKindsAreCopied) {
  kcoC_Tie tie;
  tie.SetPositionTolerance(0.75);
  std::unique_ptr<kcoC_Constraint> copy(kcoC_CopyConstraint(tie));
  ASSERT_NE(dynamic_cast<kcoC_Tie*>(copy.get()), nullptr);
  EXPECT_TRUE(*copy == tie);
  auto e = qmx_Catch<nex_PrimError>([] { kcoC_CopyConstraint(UnknownKind()); });
  EXPECT_EQ(e.Message(), "Unable to copy unknown constraint type.");
}

}  // namespace
