// Validation of the connector behaviors: each rule with its exact message, in its order, at its
// boundaries; the assert functions with their source positions.
#include <cmath>
#include <limits>

#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "kbe/kbeC_ContactForce.h"
#include "kbe/kbeC_DerivedComponent.h"
#include "kbe/kbeC_TangentialBehavior.h"
#include "kbe/kbeC_assert.h"
#include "tests/kbe/kbe_test.h"

namespace {

const double kMax = std::numeric_limits<double>::max();
using Table = cow_2DArray<double>;
using Ints = cow_List<std::int32_t>;

TEST(KbeAssert, MessagesPositionsAndUnknownCodes) {
  struct Case {
    int code;
    const char* text;
  };
  // Codes whose rules the tables below do not reach (the others' texts are checked there), with
  // the first and last codes of the table.
  const Case cases[] = {
      {0, "Number of dependencies specified is less than the minimum."},
      {18, "At least one independent component must be specified."},
      {54, "At least one independent component must be specified."},
      {55, "Derived component specifies components that are not available CORM."},
      {62, "The number of dependencies must be 0 when connector damping type is STRUCTURAL."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.code);
    auto e = qmx_Catch<nex_PrimError>([&] { kbeC_Assert(false, static_cast<kbeC_ErrorEnm>(c.code)); });
    EXPECT_STREQ(e.what(), c.text);
    EXPECT_STREQ(e.File(), "QMXOdbKbeC.m/src/kbeC_assert");
    EXPECT_EQ(e.Line(), 179);
  }
  EXPECT_NO_THROW(kbeC_Assert(true, kbeC_NoComponents));
  auto unknown = qmx_Catch<nex_PrimError>([] { kbeC_Assert(false, static_cast<kbeC_ErrorEnm>(63)); });
  EXPECT_STREQ(unknown.what(), "");

  auto content = qmx_Catch<nex_PrimError>([] { kbeC_AssertContent(false, kbeC_UnavailableComponents, "1, 2, 3"); });
  EXPECT_STREQ(content.what(), "Unavailable connector components have been specified (CORM: 1, 2, 3).");
  EXPECT_STREQ(content.File(), "QMXOdbKbeC.m/src/kbeC_assert");
  EXPECT_EQ(content.Line(), 193);
  auto none = qmx_Catch<nex_PrimError>([] { kbeC_AssertContent(false, static_cast<kbeC_ContentErrorEnm>(2), "x"); });
  EXPECT_STREQ(none.what(), "");
}

TEST(KbeOptions, RegularizationAndRateFactorRules) {
  kbe_Start();
  const char* m56 = "The regularize table option value must be set to ON when specifying defaultTolerance as OFF.";
  const char* m57 = "The defaultTolerance table option value must be set to OFF when specifying a regularization value.";
  const char* m58 = "The defaultRateFactor table option value must be set to OFF when specifying a rateFactor value.";
  const char* m59 = "The rateFactor value must be greater than 0 and cannot be greater than 1.";
  using O = kbeC_ConnectorOptions;
  const double justAbove09 = std::nextafter(0.9, 1.0);
  kbe_Check<O>(O(), {
      {"behavior settings make regularization irrelevant", [](O& o) { o.SetRegularize(false); o.SetDefaultTolerance(false); o.SetRegularization(5); }, ""},
      {"own settings, neither", [](O& o) { o.SetUseBehRegSettings(false); o.SetRegularize(false); o.SetDefaultTolerance(false); }, m56},
      {"own settings, default tolerance with a value", [](O& o) { o.SetUseBehRegSettings(false); o.SetRegularization(0.05); }, m57},
      {"regularize off, default tolerance with a value", [](O& o) { o.SetUseBehRegSettings(false); o.SetRegularize(false); o.SetRegularization(0.05); }, m57},
      {"own tolerance", [](O& o) { o.SetUseBehRegSettings(false); o.SetDefaultTolerance(false); o.SetRegularization(0.05); }, ""},
      {"56 before 58", [](O& o) { o.SetUseBehRegSettings(false); o.SetRegularize(false); o.SetDefaultTolerance(false); o.SetRateFactor(0.5); }, m56},
      {"default rate factor one bit off", [&](O& o) { o.SetRateFactor(justAbove09); }, m58},
      {"own rate factor 1", [](O& o) { o.SetDefaultRateFactor(false); o.SetRateFactor(1.0); }, ""},
      {"own rate factor above 1", [](O& o) { o.SetDefaultRateFactor(false); o.SetRateFactor(1.0000001); }, m59},
      {"own rate factor 0", [](O& o) { o.SetDefaultRateFactor(false); o.SetRateFactor(0); }, m59},
      {"58 before 59", [](O& o) { o.SetRateFactor(0); }, m58},
  });
}

kbeC_CDCTerm Term() {
  kbeC_CDCTerm t;
  t.SetIntrinsicComponents(Ints{1, 2});
  return t;
}

TEST(KbeTerms, TermsAndDerivedComponents) {
  kbe_Start();
  using T = kbeC_CDCTerm;
  kbeC_ConnectorOptions logarithmic;
  logarithmic.SetInterpolation(kbeC_ConnectorOptions::InterpolationEnm::LOGARITHMIC);
  kbeC_ConnectorOptions ownRate;
  ownRate.SetDefaultRateFactor(false);
  ownRate.SetRateFactor(0.5);
  const std::string rate = "Table rate options cannot be specified for this behavior (CDCTerm).";
  kbe_Check<T>(Term(), {
      {"no intrinsic component", [](T& t) { t.SetIntrinsicComponents(Ints{}); }, "At least one intrinsic component must be specified."},
      {"intrinsic 7", [](T& t) { t.SetIntrinsicComponents(Ints{1, 7}); }, "Intrinsic component values must be between 1 and 6."},
      {"intrinsic 0", [](T& t) { t.SetIntrinsicComponents(Ints{0}); }, "Intrinsic component values must be between 1 and 6."},
      {"local dependency without independents", [](T& t) { t.SetLocalDependency(true); }, "At least one independent component must be specified."},
      {"local dependency with independents", [](T& t) { t.SetLocalDependency(true); t.SetIndepComponents(Ints{3}); }, ""},
      {"independents are not range checked", [](T& t) { t.SetLocalDependency(true); t.SetIndepComponents(Ints{0, 7}); }, ""},
      {"independents without local dependency", [](T& t) { t.SetIndepComponents(Ints{9}); }, ""},
      {"default options", [](T& t) { t.SetOptions(kbeC_ConnectorOptions()); }, ""},
      {"logarithmic interpolation", [&](T& t) { t.SetOptions(logarithmic); }, rate},
      {"own rate factor", [&](T& t) { t.SetOptions(ownRate); }, rate},
  });

  kbeC_DerivedComponent d;
  d.AppendCdcTerm(Term());
  kbeC_CDCTerm bad = Term();
  bad.SetIntrinsicComponents(Ints{});
  d.AppendCdcTerm(bad);
  EXPECT_EQ(kbe_Failure(d), "At least one intrinsic component must be specified.");

  kbeC_DerivedComponent avail;
  kbeC_CDCTerm t = Term();
  t.SetIndepComponents(Ints{4});
  avail.AppendCdcTerm(t);
  EXPECT_NO_THROW(avail.AssertComponentsAvailable(Ints{1, 2, 4}));
  auto e = qmx_Catch<nex_PrimError>([&] { avail.AssertComponentsAvailable(Ints{1, 2, 3}); });
  EXPECT_STREQ(e.what(), "Unavailable connector components have been specified (CORM: 1, 2, 3).");
}

TEST(KbePotentials, PotentialRules) {
  kbe_Start();
  using P = kbeC_ConnectorPotential;
  kbeC_DerivedComponent emptyTerm;
  emptyTerm.AppendCdcTerm(kbeC_CDCTerm());
  kbe_Check<P>(P(), {
      {"component 0", [](P& p) { p.SetComponentNumber(0); }, "Specified component must be between 1 and 6."},
      {"component 6", [](P& p) { p.SetComponentNumber(6); }, ""},
      {"derived style ignores the number", [](P& p) { p.SetComponentStyle(P::ComponentStyleEnm::DERIVED_COMPONENT); p.SetComponentNumber(0); p.SetDerivedComponent(kbeC_DerivedComponent()); }, ""},
      {"derived style without one", [](P& p) { p.SetComponentStyle(P::ComponentStyleEnm::DERIVED_COMPONENT); }, "Derived component name for potential must be specified."},
      {"derived terms are validated", [&](P& p) { p.SetComponentStyle(P::ComponentStyleEnm::DERIVED_COMPONENT); p.SetDerivedComponent(emptyTerm); }, "At least one intrinsic component must be specified."},
      {"exponent 0", [](P& p) { p.SetPositiveExponent(0); }, ""},
      {"exponent below 0", [](P& p) { p.SetPositiveExponent(-0.1); }, "Positive exponent value cannot be less than zero."},
      {"36 before 40", [](P& p) { p.SetPositiveExponent(-1); p.SetComponentNumber(7); }, "Specified component must be between 1 and 6."},
  });
}

TEST(KbeTangential, FrictionLawRules) {
  kbe_Start();
  using B = kbeC_TangentialBehavior;
  using F = B::FormulationEnm;
  B penalty;
  penalty.SetTable(Table{{0.3}});
  kbe_Check<B>(penalty, {
      {"no column", [](B& b) { b.SetTable(Table()); }, "Missing friction coefficient."},
      {"slip rate without its column", [](B& b) { b.SetSlipRateDependency(true); }, "Incomplete friction coeffient table."},
      {"negative coefficient", [](B& b) { b.SetTable(Table{{0.3}, {-0.1}}); }, "Friction coefficient must be greater than or equal to zero."},
      {"negative slip rate", [](B& b) { b.SetSlipRateDependency(true); b.SetTable(Table{{0.3, -1}}); }, "Allowable slip rate must be greater than or equal to zero."},
      {"negative pressure", [](B& b) { b.SetPressureDependency(true); b.SetTable(Table{{0.3, -1}}); }, "Allowable pressure must be greater than or equal to zero."},
      {"pressure after slip rate", [](B& b) { b.SetSlipRateDependency(true); b.SetPressureDependency(true); b.SetTable(Table{{0.3, 1, -1}}); }, "Allowable pressure must be greater than or equal to zero."},
      {"shear stress limit 0", [](B& b) { b.SetShearStressLimit(0); }, "Shear stress limit must be greater than zero."},
      {"fraction 0", [](B& b) { b.SetFraction(0); }, "Elastic slip tolerance fraction must be greater than zero."},
      {"absolute distance 0", [](B& b) { b.SetMaximumElasticSlip(B::MaximumElasticSlipEnm::ABSOLUTE_DISTANCE); }, "Allowable elastic slip distance must be greater than zero."},
      {"absolute distance given", [](B& b) { b.SetMaximumElasticSlip(B::MaximumElasticSlipEnm::ABSOLUTE_DISTANCE); b.SetAbsoluteDistance(0.01); b.SetFraction(0); }, ""},
      {"coefficients need 3 columns", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(Table{{0.5, 0.3}}); }, "Missing friction coefficient or decay coefficient."},
      {"coefficients", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(Table{{0.5, 0.3, 2}}); }, ""},
      {"equal static and kinetic", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(Table{{0.3, 0.3, 2}}); }, ""},
      {"static below kinetic", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(Table{{0.2, 0.3, 2}}); }, "Static friction coefficient must be greater than kinetic friction coefficient."},
      {"negative kinetic", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(Table{{0.2, -0.3, 2}}); }, "Friction coefficient must be greater than or equal to zero."},
      {"negative decay", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetTable(Table{{0.5, 0.3, -2}}); }, "Allowable exponential decay coefficient must be greater than or equal to zero."},
      {"test data, one column", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetExponentialDecayDefinition(B::ExponentialDecayDefinitionEnm::TEST_DATA); }, "Missing friction coefficient."},
      {"test data, two columns", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetExponentialDecayDefinition(B::ExponentialDecayDefinitionEnm::TEST_DATA); b.SetTable(Table{{0.5, 0.3}}); }, "Missing slip rate."},
      {"test data, slip rate 0", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetExponentialDecayDefinition(B::ExponentialDecayDefinitionEnm::TEST_DATA); b.SetTable(Table{{0.5, 0.3, 0}}); }, "Allowable slip rate in test data must be greater than zero."},
      {"test data", [](B& b) { b.SetFormulation(F::EXPONENTIAL_DECAY); b.SetExponentialDecayDefinition(B::ExponentialDecayDefinitionEnm::TEST_DATA); b.SetTable(Table{{0.5, 0.3, 0.1}}); }, ""},
  });
}

kbeC_ConnectorElasticity Elastic() {
  kbeC_ConnectorElasticity e;
  e.SetComponents(Ints{1, 2, 3});
  e.SetTable(Table{{10, 20, 30}});
  return e;
}

TEST(KbeElasticity, ComponentsCouplingAndTableWidth) {
  kbe_Start();
  using E = kbeC_ConnectorElasticity;
  using Bh = E::BehaviorEnm;
  using Cp = E::CouplingEnm;
  const std::string m11 = "The number of dependencies does not match the table.";
  kbeC_ConnectorOptions ownRate;
  ownRate.SetDefaultRateFactor(false);
  ownRate.SetRateFactor(0.5);
  kbe_Check<E>(Elastic(), {
      {"no components", [](E& e) { e.SetComponents(Ints{}); }, "At least one component must be specified for this option."},
      {"component 7", [](E& e) { e.SetComponents(Ints{1, 7, 3}); }, "Specified components must be between 1 and 6."},
      {"negative dependencies", [](E& e) { e.SetDependencies(-1); }, "Number of dependencies specified is less than the minimum."},
      {"frequency with nonlinear", [](E& e) { e.SetFrequencyDependency(true); e.SetBehavior(Bh::NONLINEAR); }, "Frequency dependency can only be TRUE when behavior is LINEAR."},
      {"frequency with coupling", [](E& e) { e.SetFrequencyDependency(true); e.SetCoupling(Cp::COUPLED); }, "Frequency dependency can only be TRUE when coupling is set to UNCOUPLED."},
      {"frequency adds a column", [](E& e) { e.SetFrequencyDependency(true); e.SetTable(Table{{1, 2, 3, 4}}); }, ""},
      {"independents with linear", [](E& e) { e.SetIndependentComponents(Ints{4}); }, "Independent components are not valid when behavior is LINEAR."},
      {"independents uncoupled", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetIndependentComponents(Ints{4}); }, "Independent components cannot be specified when coupling is set to UNCOUPLED."},
      {"seven independents", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetCoupling(Cp::COUPLED_POSITION); e.SetIndependentComponents(Ints{1, 2, 3, 4, 5, 6, 1}); }, "Independent component list must have between 1 and 6 members."},
      {"duplicate independents", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetCoupling(Cp::COUPLED_POSITION); e.SetIndependentComponents(Ints{4, 4}); }, "Independent component list must not contain duplicate values."},
      {"nonlinear coupled without independents", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetCoupling(Cp::COUPLED_MOTION); }, "At least one independent component must be specified."},
      {"independents are not range checked", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetCoupling(Cp::COUPLED_MOTION); e.SetIndependentComponents(Ints{0, 9}); e.SetTable(Table{{1, 2, 3, 4, 5}}); }, ""},
      {"nonlinear coupled position: m + n", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetCoupling(Cp::COUPLED_POSITION); e.SetIndependentComponents(Ints{4, 5}); e.SetTable(Table{{1, 2, 3, 4, 5}}); }, ""},
      {"linear coupled: triangle", [](E& e) { e.SetCoupling(Cp::COUPLED); e.SetTable(Table{{1, 2, 3, 4, 5, 6}}); }, ""},
      {"linear coupled: n columns", [](E& e) { e.SetCoupling(Cp::COUPLED); }, m11},
      {"nonlinear uncoupled: 2", [](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetTable(Table{{1, 2}, {3, 4}}); }, ""},
      {"temperature and fields", [](E& e) { e.SetTemperatureDependency(true); e.SetDependencies(2); e.SetTable(Table{{1, 2, 3, 20, 1, 2}}); }, ""},
      {"dependencies without columns", [](E& e) { e.SetDependencies(1); }, m11},
      {"rigid ignores the table", [](E& e) { e.SetBehavior(Bh::RIGID); e.SetTable(Table()); }, ""},
      {"linear with rate options", [&](E& e) { e.SetOptions(ownRate); }, "Table rate options cannot be specified for this behavior (Elasticity)."},
      {"nonlinear with rate options", [&](E& e) { e.SetBehavior(Bh::NONLINEAR); e.SetTable(Table{{1, 2}}); e.SetOptions(ownRate); }, ""},
  });
}

TEST(KbeDamping, OwnRulesFirstThenElasticity) {
  kbe_Start();
  using D = kbeC_ConnectorDamping;
  D valid;
  valid.SetComponents(Ints{1});
  valid.SetTable(Table{{5}});
  kbe_Check<D>(valid, {
      {"structural nonlinear", [](D& d) { d.SetConnDampType(D::ConnDampTypeEnum::STRUCTURAL); d.SetBehavior(D::BehaviorEnm::NONLINEAR); }, "NONLINEAR behavior is not supported for connector damping type is STRUCTURAL."},
      {"structural with temperature", [](D& d) { d.SetConnDampType(D::ConnDampTypeEnum::STRUCTURAL); d.SetTemperatureDependency(true); }, "Temperature dependency can only be TRUE when connector damping type is VISCOUS."},
      {"structural with one field", [](D& d) { d.SetConnDampType(D::ConnDampTypeEnum::STRUCTURAL); d.SetDependencies(1); d.SetTable(Table{{5, 1}}); }, "The number of dependencies must be 0 when connector damping type is STRUCTURAL."},
      {"own rules before components", [](D& d) { d.SetConnDampType(D::ConnDampTypeEnum::STRUCTURAL); d.SetDependencies(1); d.SetComponents(Ints{}); }, "The number of dependencies must be 0 when connector damping type is STRUCTURAL."},
      {"then elasticity's", [](D& d) { d.SetComponents(Ints{}); }, "At least one component must be specified for this option."},
      {"viscous with temperature", [](D& d) { d.SetTemperatureDependency(true); d.SetTable(Table{{5, 20}}); }, ""},
  });
}

TEST(KbePlasticity, HardeningTablesPotentialsAndRateOptions) {
  kbe_Start();
  using P = kbeC_ConnectorPlasticity;
  P valid;
  valid.SetComponents(Ints{1});
  valid.SetIsotropicTable(Table{{100, 0}, {120, 0.1}});
  kbeC_ConnectorOptions ownRate;
  ownRate.SetDefaultRateFactor(false);
  ownRate.SetRateFactor(0.5);
  kbeC_ConnectorPotential badPotential;
  badPotential.SetComponentNumber(9);
  kbe_Check<P>(valid, {
      {"component 0", [](P& p) { p.SetComponents(Ints{0}); }, "Specified components must be between 1 and 6."},
      {"no components (coupled through potentials)", [](P& p) { p.SetComponents(Ints{}); }, ""},
      {"no hardening", [](P& p) { p.SetIsotropic(false); }, "Isotropic or kinematic hardening must be specified."},
      {"zero yield force", [](P& p) { p.SetIsotropicTable(Table{{0, 0}}); }, "A non-zero value must be specified for the yield force/moment."},
      {"zero kinematic yield", [](P& p) { p.SetKinematic(true); p.SetKinematicTable(Table{{0, 0}}); }, "A non-zero value must be specified for the yield force/moment."},
      {"temperature without its column", [](P& p) { p.SetIsotropicTemperature(true); }, "The number of table columns does not match the specified options."},
      {"exponential law", [](P& p) { p.SetIsotropicType(P::IsotropicTypeEnm::EXPONENTIAL_LAW); p.SetIsotropicTable(Table{{100, 50, 2}}); }, ""},
      {"exponential law parameter 0", [](P& p) { p.SetIsotropicType(P::IsotropicTypeEnm::EXPONENTIAL_LAW); p.SetIsotropicTable(Table{{100, 0, 2}}); }, "Exponential law parameter values must be greater than 0."},
      {"kinematic parameters", [](P& p) { p.SetKinematic(true); p.SetKinematicType(P::KinematicTypeEnm::PARAMETERS); p.SetKinematicTable(Table{{100, 10, -1}}); }, "Exponential law parameter values must be greater than 0."},
      {"potential exponent 0", [](P& p) { p.SetForcePotentialExponent(0); }, "Potential exponent value must be greater than zero."},
      {"potentials are validated", [&](P& p) { p.AppendConnectorPotential(badPotential); }, "Specified component must be between 1 and 6."},
      {"tabular isotropic takes rate options", [&](P& p) { p.SetIsotropicOptions(ownRate); }, ""},
      {"exponential isotropic refuses them", [&](P& p) { p.SetIsotropicType(P::IsotropicTypeEnm::EXPONENTIAL_LAW); p.SetIsotropicTable(Table{{100, 50, 2}}); p.SetIsotropicOptions(ownRate); }, "Table rate options cannot be specified for this behavior (Plasticity; isotropic definition must be TABULAR)."},
      {"kinematic refuses them", [&](P& p) { p.SetKinematicOptions(ownRate); }, "Table rate options cannot be specified for this behavior (Plasticity; kinematic)."},
  });
}

TEST(KbeFriction, ContactForcesLawAndOrder) {
  kbe_Start();
  using F = kbeC_ConnectorFriction;
  F valid;
  kbeC_TangentialBehavior law;
  law.SetTable(Table{{0.2}});
  valid.SetTangentialBehavior(law);
  valid.SetTable(Table{{5}});
  kbeC_TangentialBehavior badLaw;
  kbeC_ContactForce zero;
  zero.SetTable(Table{{0, 0}});
  kbeC_ConnectorOptions ownRate;
  ownRate.SetDefaultRateFactor(false);
  ownRate.SetRateFactor(0.5);
  kbe_Check<F>(valid, {
      {"stick stiffness 0", [](F& f) { f.SetStickStiffness(0); }, "Stick stiffness must be greater than zero."},
      {"stick stiffness given", [](F& f) { f.SetStickStiffness(1e6); }, ""},
      {"independents required", [](F& f) { f.SetComponentType(F::ComponentTypeEnm::POSITION); }, "At least one independent component must be specified."},
      {"independent 7", [](F& f) { f.SetComponentType(F::ComponentTypeEnm::MOTION); f.SetIndependentComponents(Ints{7}); }, "Specified independent components must be between 1 and 6."},
      {"slip direction 0", [](F& f) { f.SetTangentDirection(0); }, "Slip direction must have value between 1 and 6."},
      {"contact component 7", [](F& f) { f.SetUseContactForceComponent(true); f.SetContactForceComponent(7); }, "Contact force intrinsic component must have value between 1 and 6."},
      {"unused contact component 0", [](F& f) { f.SetContactForceComponent(0); }, "Contact force intrinsic component must have value between 1 and 6."},
      {"contact component 6", [](F& f) { f.SetContactForceComponent(6); }, ""},
      {"unused derived contact force missing", [](F& f) { f.SetContactForceStyle(F::ContactForceStyleEnm::DERIVED_COMPONENT); }, "Derived component for contact force must be specified when contactForceStyle is set to DerivedComponent."},
      {"derived contact force given", [](F& f) { f.SetContactForceStyle(F::ContactForceStyleEnm::DERIVED_COMPONENT); f.SetDerivedComponent(kbeC_DerivedComponent()); }, ""},
      {"derived contact force missing", [](F& f) { f.SetUseContactForceComponent(true); f.SetContactForceStyle(F::ContactForceStyleEnm::DERIVED_COMPONENT); }, "Derived component for contact force must be specified when contactForceStyle is set to DerivedComponent."},
      {"potential exponent", [](F& f) { f.SetForcePotentialExponent(-1); }, "Potential exponent value must be greater than zero."},
      {"all-zero table", [](F& f) { f.SetTable(Table{{0}, {0}}); }, "Contact force table must have a non-zero value."},
      {"all-zero contact force", [&](F& f) { f.SetContactForces(kbeC_ContactForceList{cow_COW<kbeC_ContactForce>(zero)}); }, "Contact force table must have a non-zero value."},
      {"law validated", [&](F& f) { f.SetTangentialBehavior(badLaw); }, "Missing friction coefficient."},
      {"6 before 19", [](F& f) { f.SetTangentDirection(9); f.SetStickStiffness(-1); }, "Stick stiffness must be greater than zero."},
      {"predefined takes rate options", [&](F& f) { f.SetOptions(ownRate); }, ""},
      {"customized refuses them", [&](F& f) { f.SetFrictionModel(F::FrictionModelEnm::USER_CUSTOMIZED); f.SetOptions(ownRate); }, "Table rate options cannot be specified for this behavior (Friction; internal contact forces)."},
  });
}

TEST(KbeDamage, AffectedComponentsEvolutionAndRateOptions) {
  kbe_Start();
  using D = kbeC_ConnectorDamage;
  D valid;
  valid.SetComponents(Ints{1});
  kbeC_ConnectorOptions ownRate;
  ownRate.SetDefaultRateFactor(false);
  ownRate.SetRateFactor(0.5);
  auto tabular = [](D& d, Table t) {
    d.SetEvolution(true);
    d.SetSoftening(D::SofteningEnm::TABULAR);
    d.SetEvolutionTable(t);
  };
  kbe_Check<D>(valid, {
      {"component 7", [](D& d) { d.SetComponents(Ints{7}); }, "Specified components must be between 1 and 6."},
      {"affected without components", [](D& d) { d.SetUseAffected(true); }, "No affected components have been specified."},
      {"affected given", [](D& d) { d.SetUseAffected(true); d.SetAffectedComponents(Ints{2}); }, ""},
      {"damage above 1", [&](D& d) { tabular(d, Table{{0, 0}, {1.5, 1}}); }, "Damage variable values cannot be less than 0 or greater than 1."},
      {"damage below 0", [&](D& d) { tabular(d, Table{{-0.1, 0}}); }, "Damage variable values cannot be less than 0 or greater than 1."},
      {"zero after the first row", [&](D& d) { tabular(d, Table{{0, 0}, {0, 1}}); }, "Damage variable table data can only have zero values in the first row of data."},
      {"tabular damage", [&](D& d) { tabular(d, Table{{0, 0}, {0.5, 1}, {1, 2}}); }, ""},
      {"initiation rate with force criterion", [&](D& d) { d.SetInitiationOptions(ownRate); }, "Table rate options cannot be specified for this behavior (Damage; initiation criteria must be PLASTIC_MOTION)."},
      {"initiation rate with plastic motion", [&](D& d) { d.SetCriterion(D::CriterionEnm::PLASTIC_MOTION); d.SetInitiationOptions(ownRate); }, ""},
      {"evolution rate", [&](D& d) { d.SetEvolutionOptions(ownRate); }, "Table rate options cannot be specified for this behavior (Damage; evolution)."},
  });
}

TEST(KbeLimits, StopLockAndFailure) {
  kbe_Start();
  using S = kbeC_ConnectorStop;
  S stop;
  stop.SetComponents(Ints{1});
  stop.SetMaxMotion(0.2);
  kbe_Check<S>(stop, {
      {"both unspecified", [](S& s) { s.SetMaxMotion(kMax); }, "At least one displacement limit must be defined."},
      {"equal limits", [](S& s) { s.SetMinMotion(0.2); }, "Minimum displacement/rotation must be less than the maximum displacement/rotation."},
      {"ordered limits", [](S& s) { s.SetMinMotion(-0.2); }, ""},
      {"no components", [](S& s) { s.SetComponents(Ints{}); s.SetMaxMotion(kMax); }, "At least one component must be specified for this option."},
  });

  using L = kbeC_ConnectorLock;
  L lock;
  lock.SetComponents(Ints{1, 2});
  lock.SetMaxForce(100);
  kbe_Check<L>(lock, {
      {"ALL with any stored value", [](L& l) { l.SetLockingComponent(kbeC_kAll); }, ""},
      {"locking component 7", [](L& l) { l.SetLockingComponent(7); }, "Specified affected component must be between 1 and 6 or set to ALL."},
      {"locking component 3", [](L& l) { l.SetLockingComponent(3); }, ""},
      {"no limit", [](L& l) { l.SetMaxForce(kMax); }, "At least one motion criterion must be defined."},
      {"motion order", [](L& l) { l.SetMinMotion(1); l.SetMaxMotion(0.5); }, "Minimum displacement/rotation must be less than the maximum displacement/rotation."},
      {"force order", [](L& l) { l.SetMinForce(100); }, "Minimum force must be less than the maximum force."},
      {"component 7", [](L& l) { l.SetComponents(Ints{7}); }, "Specified components must be between 1 and 6."},
  });

  using Fl = kbeC_ConnectorFailure;
  Fl failure;
  failure.SetComponents(Ints{1});
  failure.SetMinMotion(-1);
  kbe_Check<Fl>(failure, {
      {"release component 0", [](Fl& f) { f.SetReleaseComponent(0); }, "Specified affected component must be between 1 and 6 or set to ALL."},
      {"no limit", [](Fl& f) { f.SetMinMotion(kMax); }, "At least one motion criterion must be defined."},
      {"force order", [](Fl& f) { f.SetMinForce(5); f.SetMaxForce(-5); }, "Minimum force must be less than the maximum force."},
  });
}

}  // namespace
