// The rules of every amplitude kind, in their order, with their exact messages.
#include <cmath>

#include "kam/kamC_ActuatorAmplitude.h"
#include "kam/kamC_BaselineCorrection.h"
#include "kam/kamC_CorrelationComponent.h"
#include "kam/kamC_Decay.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_Modulated.h"
#include "kam/kamC_Periodic.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_SolutionDependent.h"
#include "kam/kamC_Spectrum.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_Tabular.h"
#include "kam/kamC_UserAmplitude.h"
#include "tests/kam/kam_test.h"

namespace {

using T2 = cow_2DArray<double>;
const double kNaN = std::nan("");

class KamValidation : public ::testing::Test {
 protected:
  void SetUp() override { kam_Start(); }
};

kamC_BaselineCorrection Baseline(std::initializer_list<double> v) { return kamC_BaselineCorrection(cow_List<double>(v)); }

TEST_F(KamValidation, AssertThrowsTheCodesMessageFromItsSourcePosition) {
  for (std::size_t code = 0; code < kam_Messages().size(); ++code) {
    SCOPED_TRACE(code);
    EXPECT_EQ(kamC_ErrorMessage(static_cast<kamC_ErrorEnm>(code)), kam_Messages()[code]);
    auto e = qmx_Catch<nex_PrimError>([&] { kamC_Assert(false, static_cast<kamC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), kam_Messages()[code]);
    EXPECT_STREQ(e.File(), "QMXOdbKamC.m/src/kamC_assert");
    EXPECT_EQ(e.Line(), 49);
  }
  EXPECT_NO_THROW(kamC_Assert(true, kamC_TimesNotIncreasing));
  // codes outside the table carry an empty message
  for (int code : {32, -1, 1000}) {
    auto e = qmx_Catch<nex_PrimError>([&] { kamC_Assert(false, static_cast<kamC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), "") << code;
  }
}

TEST_F(KamValidation, Tabular) {
  kam_CheckCases<kamC_Tabular>({
      {"equal successive times", [](kamC_Tabular& a) { a.SetData(T2{{0, 0}, {1, 1}, {1, 2}}); }, kam_kPasses},
      {"a time before the one above it", [](kamC_Tabular& a) { a.SetData(T2{{0, 0}, {2, 1}, {1, 2}}); }, 0},
      {"a NaN time", [](kamC_Tabular& a) { a.SetData(T2{{0, 0}, {kNaN, 1}}); }, 0},
      {"negative times that increase", [](kamC_Tabular& a) { a.SetData(T2{{-2, 0}, {-1, 1}}); }, kam_kPasses},
      {"smoothing 0.5", [](kamC_Tabular& a) { a.SetSmooth(0.5); }, kam_kPasses},
      {"smoothing 0", [](kamC_Tabular& a) { a.SetSmooth(0.0); }, kam_kPasses},
      {"smoothing 0.5000001", [](kamC_Tabular& a) { a.SetSmooth(0.5000001); }, 2},
      {"smoothing below 0", [](kamC_Tabular& a) { a.SetSmooth(-1e-9); }, 2},
      {"smoothing NaN", [](kamC_Tabular& a) { a.SetSmooth(kNaN); }, 2},
      {"smoothing unspecified", [](kamC_Tabular& a) { a.SetSmooth(kam_kUnspecified); }, kam_kPasses},
      {"three columns", [](kamC_Tabular& a) { a.SetData(T2{{0, 0, 0}, {1, 1, 1}}); }, 11},
      {"one row", [](kamC_Tabular& a) { a.SetData(T2{{0, 0}}); }, 12},
      {"no rows", [](kamC_Tabular& a) { a.SetData(T2()); }, 12},
      {"three columns before one row", [](kamC_Tabular& a) { a.SetData(T2{{0, 0, 0}}); }, 11},
      {"smoothing before the table", [](kamC_Tabular& a) { a.SetSmooth(0.6); a.SetData(T2{{0, 0, 0}}); }, 2},
      {"a good correction", [](kamC_Tabular& a) { a.SetBaselineCorrection(Baseline({0, 0.5, 1})); }, kam_kPasses},
      {"a correction of (0, 0)", [](kamC_Tabular& a) { a.SetBaselineCorrection(Baseline({0, 0})); }, 19},
      {"the table before the correction",
       [](kamC_Tabular& a) {
         a.SetData(T2{{1, 0}, {0, 1}});
         a.SetBaselineCorrection(Baseline({-1}));
       },
       0},
  });
}

TEST_F(KamValidation, EquallySpaced) {
  using A = kamC_EquallySpaced;
  kam_CheckCases<A>({
      {"smoothing 0.5", [](A& a) { a.SetSmooth(0.5); }, kam_kPasses},
      {"smoothing 0.51", [](A& a) { a.SetSmooth(0.51); }, 2},
      {"interval 0", [](A& a) { a.SetFixedInterval(0); }, 9},
      {"interval negative", [](A& a) { a.SetFixedInterval(-0.1); }, 9},
      {"interval NaN", [](A& a) { a.SetFixedInterval(kNaN); }, 9},
      {"one value", [](A& a) { a.SetData({3.0}); }, 12},
      {"two values", [](A& a) { a.SetData({3.0, -3.0}); }, kam_kPasses},
      {"smoothing before the interval", [](A& a) { a.SetSmooth(1); a.SetFixedInterval(0); }, 2},
      {"interval before the values", [](A& a) { a.SetFixedInterval(0); a.SetData({}); }, 9},
      {"a negative begin is allowed", [](A& a) { a.SetBegin(-5); }, kam_kPasses},
      {"correction starting below zero", [](A& a) { a.SetBaselineCorrection(Baseline({-0.5, 1})); }, 19},
      {"correction at zero", [](A& a) { a.SetBaselineCorrection(Baseline({0})); }, kam_kPasses},
      {"an empty correction", [](A& a) { a.SetBaselineCorrection(Baseline({})); }, kam_kPasses},
      {"values before the correction", [](A& a) { a.SetData({1}); a.SetBaselineCorrection(Baseline({0, 0})); }, 12},
  });
}

TEST_F(KamValidation, SmoothStepAndPeriodic) {
  kam_CheckCases<kamC_SmoothStep>({
      {"three columns", [](kamC_SmoothStep& a) { a.SetData(T2{{0, 0, 1}, {1, 1, 1}}); }, 11},
      {"one row", [](kamC_SmoothStep& a) { a.SetData(T2{{0, 0}}); }, 12},
      {"decreasing time", [](kamC_SmoothStep& a) { a.SetData(T2{{0, 0}, {2, 1}, {1.999, 0}}); }, 0},
      {"equal times", [](kamC_SmoothStep& a) { a.SetData(T2{{0, 0}, {0, 1}}); }, kam_kPasses},
  });
  kam_CheckCases<kamC_Periodic>({
      {"no coefficients", [](kamC_Periodic& a) { a.SetData(T2()); }, 22},
      {"no rows of three columns", [](kamC_Periodic& a) { a.SetData(T2(0, 3)); }, 22},
      {"three columns", [](kamC_Periodic& a) { a.SetData(T2{{1, 0, 0}}); }, 11},
      {"several rows", [](kamC_Periodic& a) { a.SetData(T2{{1, 0}, {0.5, 0.25}}); }, kam_kPasses},
  });
}

// Every table shape (no rows, rows without cells, cells without rows) is validated without
// reading a cell the table does not have; rows without a cell hold no data.
TEST_F(KamValidation, EveryTableShapeIsValidatedWithoutReadingMissingCells) {
  struct Shape {
    std::size_t rows, columns;
    int tabular, periodic, psd, psdUser, spectrum;
  };
  const Shape shapes[] = {
      {0, 0, 12, 22, 15, kam_kPasses, 15}, {2, 0, 12, 22, 15, kam_kPasses, 15}, {3, 0, 12, 22, 15, kam_kPasses, 15},
      {0, 2, 12, 22, 15, kam_kPasses, 15}, {0, 3, 11, 22, kam_kPasses, kam_kPasses, kam_kPasses},
      {1, 1, 12, kam_kPasses, 15, 24, 15}, {2, 1, kam_kPasses, kam_kPasses, 15, 24, 15},
  };
  for (const Shape& sh : shapes) {
    SCOPED_TRACE(std::to_string(sh.rows) + " x " + std::to_string(sh.columns));
    const T2 table(sh.rows, sh.columns, 0.0);
    kam_CheckCases<kamC_Tabular>({{"tabular", [&](kamC_Tabular& a) { a.SetData(table); }, sh.tabular}});
    kam_CheckCases<kamC_SmoothStep>({{"smooth step", [&](kamC_SmoothStep& a) { a.SetData(table); }, sh.tabular}});
    kam_CheckCases<kamC_Periodic>({{"periodic", [&](kamC_Periodic& a) { a.SetData(table); }, sh.periodic}});
    kam_CheckCases<kamC_PsdDefinition>({
        {"psd", [&](kamC_PsdDefinition& a) { a.SetData(table); }, sh.psd},
        {"psd in decibels", [&](kamC_PsdDefinition& a) { a.SetUnitType(kamC_PsdDefinition::PsdTypeEnm::DB); a.SetData(table); },
         sh.psd},
        {"psd of a subroutine", [&](kamC_PsdDefinition& a) { a.SetUserSubroutine(true); a.SetData(table); }, sh.psdUser},
    });
    kam_CheckCases<kamC_Spectrum>({{"spectrum", [&](kamC_Spectrum& a) { a.SetData(table); }, sh.spectrum}});
  }
}

TEST_F(KamValidation, SolutionDependentDecayAndModulated) {
  using S = kamC_SolutionDependent;
  auto set = [](double mn, double in, double mx) {
    return [=](S& a) {
      a.SetMinimum(mn);
      a.SetInitial(in);
      a.SetMaximum(mx);
    };
  };
  kam_CheckCases<S>({
      {"all equal", set(1, 1, 1), kam_kPasses},
      {"initial above maximum", set(0, 2, 1), 21},
      {"initial above maximum and below minimum", set(10, 5, 1), 21},
      {"minimum above initial", set(2, 1, 3), 20},
      {"minimum above maximum, initial between by neither", set(5, 3, 4), 20},
      {"NaN initial", set(0, kNaN, 1), 20},
  });
  using D = kamC_Decay;
  kam_CheckCases<D>({
      {"start 0", [](D& a) { a.SetStart(0); }, kam_kPasses},
      {"start negative", [](D& a) { a.SetStart(-1); }, 8},
      {"decay time 0", [](D& a) { a.SetDecayTime(0); }, 1},
      {"start before decay time", [](D& a) { a.SetStart(-1); a.SetDecayTime(-1); }, 8},
  });
  using M = kamC_Modulated;
  kam_CheckCases<M>({
      {"start negative", [](M& a) { a.SetStart(-0.5); }, 8},
      {"frequency 1 zero", [](M& a) { a.SetFrequency1(0); }, 6},
      {"frequency 2 zero", [](M& a) { a.SetFrequency2(0); }, 7},
      {"frequency 1 before 2", [](M& a) { a.SetFrequency1(-1); a.SetFrequency2(-1); }, 6},
      {"negative magnitude is a plain scale", [](M& a) { a.SetMagnitude(-3); }, kam_kPasses},
  });
}

TEST_F(KamValidation, PsdDefinitionAndSpectrum) {
  using P = kamC_PsdDefinition;
  using U = P::PsdTypeEnm;
  kam_CheckCases<P>({
      {"negative gravity", [](P& a) { a.SetReferenceGravityAcceleration(-1); }, 13},
      {"negative power", [](P& a) { a.SetReferencePower(-1); }, 14},
      {"gravity before power", [](P& a) { a.SetReferenceGravityAcceleration(-1); a.SetReferencePower(-1); }, 13},
      {"zero references", [](P& a) { a.SetReferenceGravityAcceleration(0); a.SetReferencePower(0); }, kam_kPasses},
      {"user subroutine with DB", [](P& a) { a.SetUserSubroutine(true); a.SetUnitType(U::DB); }, 23},
      {"power before the subroutine", [](P& a) { a.SetReferencePower(-1); a.SetUserSubroutine(true); a.SetUnitType(U::DB); }, 14},
      {"user subroutine with data", [](P& a) { a.SetUserSubroutine(true); a.SetData(T2{{1, 2, 3}}); }, 24},
      {"user subroutine without data", [](P& a) { a.SetUserSubroutine(true); a.SetData(T2()); }, kam_kPasses},
      {"two columns", [](P& a) { a.SetData(T2{{1, 2}}); }, 15},
      {"no columns", [](P& a) { a.SetData(T2()); }, 15},
      {"DB band 16", [](P& a) { a.SetUnitType(U::DB); a.SetData(T2{{1, 0, 0}, {16, 0, 0}}); }, 25},
      {"DB band 0", [](P& a) { a.SetUnitType(U::DB); a.SetData(T2{{0, 0, 0}}); }, 25},
      {"DB bands 1 and 15", [](P& a) { a.SetUnitType(U::DB); a.SetData(T2{{1, -3, 0}, {15, 2, 0}}); }, kam_kPasses},
      {"DB columns before bands", [](P& a) { a.SetUnitType(U::DB); a.SetData(T2{{16, 0}}); }, 15},
      {"FORCE takes any frequency", [](P& a) { a.SetUnitType(U::FORCE); a.SetData(T2{{16, 0, 0}, {200, 1, 0}}); }, kam_kPasses},
  });
  using S = kamC_Spectrum;
  kam_CheckCases<S>({
      {"negative gravity", [](S& a) { a.SetGravity(-9.81); }, 13},
      {"two columns", [](S& a) { a.SetData(T2{{1, 2}}); }, 15},
      {"gravity before columns", [](S& a) { a.SetGravity(-1); a.SetData(T2{{1, 2}}); }, 13},
      {"rows of three", [](S& a) { a.SetData(T2{{0.1, 1, 0.05}, {0.2, 2, 0.05}}); }, kam_kPasses},
  });
  // Kinds without rules.
  EXPECT_NO_THROW(kamC_ActuatorAmplitude().AssertValid());
  kamC_UserAmplitude user;
  user.SetNumVariables(-1);
  EXPECT_NO_THROW(user.AssertValid());
  EXPECT_NO_THROW(kamC_SpectrumAmplitude().AssertValid());
}

TEST_F(KamValidation, BaselineCorrection) {
  using B = kamC_BaselineCorrection;
  auto with = [](std::initializer_list<double> v) { return [v](B& b) { b.SetIntervals(cow_List<double>(v)); }; };
  kam_CheckCases<B>({
      {"(0, 0)", with({0, 0}), 19},
      {"first negative", with({-0.001}), 19},
      {"first zero", with({0}), kam_kPasses},
      {"increasing", with({0.5, 1, 2}), kam_kPasses},
      {"a step back", with({0.5, 1, 0.75}), 19},
      {"NaN", with({0.5, kNaN}), 19},
  });
}

TEST_F(KamValidation, CorrelationComponent) {
  using C = kamC_CorrelationComponent;
  using A = C::CorrelationApproachEnm;
  auto set = [](A approach, std::initializer_list<double> v) {
    return [=](C& c) {
      c.SetApproach(approach);
      c.SetDataList(cow_List<double>(v));
    };
  };
  kam_CheckCases<C>({
      {"USER with data", set(A::USER, {1}), 28},
      {"USER without data", set(A::USER, {}), kam_kPasses},
      {"MOVING_NOISE", set(A::MOVING_NOISE, {1, 2, 3}), 26},
      {"MOVING_NOISE without data", set(A::MOVING_NOISE, {}), 26},
      {"MOVING_NOISE with four values", set(A::MOVING_NOISE, {1, 2, 3, 4}), 29},
      {"CORRELATED without data", set(A::CORRELATED, {}), 30},
      {"UNCORRELATED without data", set(A::UNCORRELATED, {}), 30},
      {"CORRELATED with two", set(A::CORRELATED, {1, 2}), kam_kPasses},
      {"UNCORRELATED with three", set(A::UNCORRELATED, {1, 2, 3}), 31},
      {"CORRELATED with three", set(A::CORRELATED, {1, 2, 3}), 31},
  });
}

}  // namespace
