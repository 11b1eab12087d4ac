#include <cmath>
#include <limits>
#include <set>
#include <string>

#include "kbp/kbpC_ArbitraryProfile.h"
#include "kbp/kbpC_BoxProfile.h"
#include "kbp/kbpC_CbeamProfile.h"
#include "kbp/kbpC_CircularProfile.h"
#include "kbp/kbpC_GeneralizedProfile.h"
#include "kbp/kbpC_HatProfile.h"
#include "kbp/kbpC_HexagonalProfile.h"
#include "kbp/kbpC_IbeamProfile.h"
#include "kbp/kbpC_LbeamProfile.h"
#include "kbp/kbpC_PipeProfile.h"
#include "kbp/kbpC_RectangularProfile.h"
#include "kbp/kbpC_TbeamProfile.h"
#include "kbp/kbpC_TrapezoidalProfile.h"
#include "tests/kbp/kbp_test.h"

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(KbpMessages, TheTrickyTextsAreKeptLetterForLetter) {
  struct Row {
    int code;
    const char* text;
  };
  const Row rows[] = {
      {0, "Area must be greater than zero."},
      {3, "The value of I22  must be greater than or equal to zero."},
      {4, "Unable to copy unknown profile type."},
      {5, "The polar moment of inertia, J, must be non-negative."},
      {6, "The value of I12 must satisfy the inequality:\n -(I11+I22)/2 < I12 <= (I11+I22)/2"},
      {12, "Two connected segments cannot have zero thickness."},
      {22, "The thickness must be less than sqrt(3)/2 times the radius."},
      {33, "The thickness t1 must be less than h."},
      {35, "The thickness t2 must be less than b."},
      {38, "Number of points is not equal to the number of segments + 1"},
      {39, "The thickness t3 must be less than b1 and b2"},
      {40, "Thickness 1 + Thickness 2 must be less than the height."},
      {41, "The thickness t3 must be less than half b1"},
  };
  for (const auto& r : rows) EXPECT_EQ(std::string(kbpC_ErrorMessage(static_cast<kbpC_ErrorEnm>(r.code))), r.text);
}

// The validation tests identify a code by its message, so no two codes may share one.
TEST(KbpMessages, EveryCodeHasItsOwnMessageAndNothingOutsideTheTable) {
  std::set<std::string> seen;
  for (int code = 0; code <= 41; ++code) {
    std::string text = kbpC_ErrorMessage(static_cast<kbpC_ErrorEnm>(code));
    EXPECT_FALSE(text.empty()) << code;
    EXPECT_TRUE(seen.insert(text).second) << code;
  }
  EXPECT_STREQ(kbpC_ErrorMessage(static_cast<kbpC_ErrorEnm>(42)), "");
  EXPECT_STREQ(kbpC_ErrorMessage(static_cast<kbpC_ErrorEnm>(-1)), "");
}

TEST(KbpAssert, ThrowsThePrimExceptionWithTheModulePosition) {
  EXPECT_NO_THROW(kbpC_Assert(true, kbpC_I22Negative));
  auto e = qmx_Catch<nex_PrimError>([] { kbpC_Assert(false, kbpC_I22Negative); });
  EXPECT_EQ(e.Message(), "The value of I22  must be greater than or equal to zero.");
  EXPECT_STREQ(e.File(), "QMXOdbKbpC.m/src/kbpC_assert");
  EXPECT_EQ(e.Line(), kbpC_kAssertLine);
  EXPECT_STREQ(e.Kind(), "PrimException");
  auto unknown = qmx_Catch<nex_PrimError>([] { kbpC_Assert(false, static_cast<kbpC_ErrorEnm>(99)); });
  EXPECT_EQ(unknown.Message(), "");
}

TEST(KbpValidation, Generalized) {
  using P = kbpC_GeneralizedProfile;
  auto inertia = [](double i11, double i22, double i12) {
    return [=](P& p) {
      p.SetI11(i11);
      p.SetI22(i22);
      p.SetI12(i12);
    };
  };
  kbp_CheckCases<P>({
      {"i12 at the upper bound", inertia(2, 2, 2), kPasses},
      {"i12 at the lower bound", inertia(2, 2, -2), kbpC_I12OutOfRange},
      {"i12 just above the upper bound", inertia(2, 2, 2.0000001), kbpC_I12OutOfRange},
      {"i12 just inside the lower bound", inertia(2, 2, -1.9999999), kPasses},
      {"i22 zero, i12 inside the bound", inertia(2, 0, 0.1), kbpC_I12NotZeroWithZeroI22},
      {"i22 zero, i12 zero", inertia(2, 0, 0), kPasses},
      {"i22 negative", inertia(2, -1, 0), kbpC_I22Negative},
      {"i12 NaN", inertia(2, 2, kNaN), kbpC_I12OutOfRange},
      {"area zero", [](P& p) { p.SetArea(0); }, kbpC_AreaNotPositive},
      {"i11 zero", [](P& p) { p.SetI11(0); }, kbpC_I11NotPositive},
      {"j negative", [](P& p) { p.SetJ(-1e-9); }, kbpC_JNegative},
      {"j zero", [](P& p) { p.SetJ(0); }, kPasses},
      {"warping members are free", [](P& p) { p.SetGammaO(-5); p.SetGammaW(-5); }, kPasses},
      {"area and i11 both bad", [](P& p) { p.SetArea(-1); p.SetI11(-1); }, kbpC_AreaNotPositive},
      {"i12 bound before i22 sign", inertia(1, -0.5, 1), kbpC_I12OutOfRange},
      {"i22 sign before j", [inertia](P& p) { inertia(2, -1, 0)(p); p.SetJ(-1); }, kbpC_I22Negative},
  });
}

TEST(KbpValidation, Rectangular) {
  using P = kbpC_RectangularProfile;
  kbp_CheckCases<P>({
      {"a zero", [](P& p) { p.SetA(0); }, kbpC_DimensionANotPositive},
      {"b negative", [](P& p) { p.SetB(-1); }, kbpC_DimensionBNotPositive},
      {"a NaN", [](P& p) { p.SetA(kNaN); }, kbpC_DimensionANotPositive},
      {"both bad", [](P& p) { p.SetA(0); p.SetB(0); }, kbpC_DimensionANotPositive},
  });
}

TEST(KbpValidation, Box) {
  using P = kbpC_BoxProfile;
  auto separate = [](double t1, double t2, double t3, double t4) {
    return [=](P& p) {
      p.SetUniformThickness(false);
      p.SetT1(t1);
      p.SetT2(t2);
      p.SetT3(t3);
      p.SetT4(t4);
    };
  };
  // defaults: a = 0.1 wide, b = 0.2 high
  kbp_CheckCases<P>({
      {"height zero", [](P& p) { p.SetB(0); }, kbpC_HeightNotPositive},
      {"width zero", [](P& p) { p.SetA(0); }, kbpC_WidthNotPositive},
      {"height before width", [](P& p) { p.SetA(0); p.SetB(0); }, kbpC_HeightNotPositive},
      {"uniform t zero", [](P& p) { p.SetT1(0); }, kbpC_ThicknessNotPositive},
      {"uniform t = a/2", [](P& p) { p.SetT1(0.05); }, kbpC_ThicknessNotBelowHalfWidth},
      {"uniform t just below a/2", [](P& p) { p.SetT1(0.0499); }, kPasses},
      {"uniform t = b/2", [](P& p) { p.SetA(1); p.SetT1(0.1); }, kbpC_ThicknessNotBelowHalfHeight},
      {"uniform ignores t2 to t4", [](P& p) { p.SetT2(0); p.SetT3(-1); p.SetT4(5); }, kPasses},
      {"separate, t4 zero", separate(0.01, 0.01, 0.01, 0), kbpC_ThicknessesNotPositive},
      {"separate, t1 + t3 = a", separate(0.06, 0.01, 0.04, 0.01), kbpC_T1PlusT3NotBelowWidth},
      {"separate, t1 above a/2 but t1 + t3 < a", separate(0.06, 0.01, 0.03, 0.01), kPasses},
      {"separate, t2 + t4 = b", separate(0.01, 0.15, 0.01, 0.05), kbpC_T2PlusT4NotBelowHeight},
      {"separate, width rule before height rule", separate(0.06, 0.15, 0.04, 0.05), kbpC_T1PlusT3NotBelowWidth},
  });
}

TEST(KbpValidation, CircularPipeAndHexagon) {
  kbp_CheckCases<kbpC_CircularProfile>({
      {"r zero", [](kbpC_CircularProfile& p) { p.SetR(0); }, kbpC_RadiusNotPositive},
      {"r negative", [](kbpC_CircularProfile& p) { p.SetR(-1); }, kbpC_RadiusNotPositive},
  });
  using Pipe = kbpC_PipeProfile;
  kbp_CheckCases<Pipe>({
      {"r zero", [](Pipe& p) { p.SetR(0); }, kbpC_RadiusNotPositive},
      {"t zero", [](Pipe& p) { p.SetT(0); }, kbpC_ThicknessNotPositive},
      {"t = r", [](Pipe& p) { p.SetR(0.05); p.SetT(0.05); }, kbpC_ThicknessNotBelowRadius},
      {"t just below r", [](Pipe& p) { p.SetT(0.0499); }, kPasses},
      {"thick wall", [](Pipe& p) { p.SetIntegrationScheme(Pipe::IntegrationSchemeEnm::THICK_WALL); }, kPasses},
      {"r before t", [](Pipe& p) { p.SetR(0); p.SetT(0); }, kbpC_RadiusNotPositive},
  });
  using Hex = kbpC_HexagonalProfile;
  kbp_CheckCases<Hex>({
      {"r zero", [](Hex& p) { p.SetR(0); }, kbpC_RadiusNotPositive},
      {"t zero", [](Hex& p) { p.SetT(0); }, kbpC_ThicknessTNotPositive},
      {"t = 0.85 r", [](Hex& p) { p.SetR(1); p.SetT(0.85); }, kPasses},
      {"t = 0.87 r", [](Hex& p) { p.SetR(1); p.SetT(0.87); }, kbpC_ThicknessNotBelowHexagonLimit},
      {"t above r", [](Hex& p) { p.SetR(1); p.SetT(2); }, kbpC_ThicknessNotBelowHexagonLimit},
  });
}

TEST(KbpValidation, Trapezoidal) {
  using P = kbpC_TrapezoidalProfile;
  kbp_CheckCases<P>({
      {"a zero", [](P& p) { p.SetA(0); }, kbpC_DimensionANotPositive},
      {"b zero", [](P& p) { p.SetB(0); }, kbpC_DimensionBNotPositive},
      {"c zero", [](P& p) { p.SetC(0); }, kbpC_DimensionCNotPositive},
      {"d is free", [](P& p) { p.SetD(-3); }, kPasses},
      {"b before c", [](P& p) { p.SetB(0); p.SetC(0); }, kbpC_DimensionBNotPositive},
  });
}

TEST(KbpValidation, Ibeam) {
  using P = kbpC_IbeamProfile;
  kbp_CheckCases<P>({
      {"h zero", [](P& p) { p.SetH(0); }, kbpC_HeightNotPositive},
      {"web zero", [](P& p) { p.SetT3(0); }, kbpC_WebThicknessNotPositive},
      {"no flanges", [](P& p) { p.SetB1(0); p.SetB2(0); }, kbpC_NoFlangeWidth},
      {"one flange", [](P& p) { p.SetB1(0); }, kPasses},
      {"t2 zero", [](P& p) { p.SetT2(0); }, kbpC_ThicknessTwoNotPositive},
      {"t1 zero", [](P& p) { p.SetT1(0); }, kbpC_ThicknessOneNotPositive},
      {"h before web", [](P& p) { p.SetH(0); p.SetT3(0); }, kbpC_HeightNotPositive},
      {"web before flanges", [](P& p) { p.SetT3(0); p.SetB1(0); p.SetB2(0); }, kbpC_WebThicknessNotPositive},
      {"t2 before t1", [](P& p) { p.SetT1(0); p.SetT2(0); }, kbpC_ThicknessTwoNotPositive},
  });
}

TEST(KbpValidation, Lbeam) {
  using P = kbpC_LbeamProfile;
  // defaults: a = b = 0.05
  kbp_CheckCases<P>({
      {"a zero", [](P& p) { p.SetA(0); }, kbpC_DimensionANotPositive},
      {"b zero", [](P& p) { p.SetB(0); }, kbpC_DimensionBNotPositive},
      {"t1 zero", [](P& p) { p.SetT1(0); }, kbpC_ThicknessT1NotPositive},
      {"t2 zero", [](P& p) { p.SetT2(0); }, kbpC_ThicknessT2NotPositive},
      {"t1 = b", [](P& p) { p.SetB(0.02); p.SetT1(0.02); }, kbpC_T1NotBelowB},
      {"t2 = a", [](P& p) { p.SetA(0.02); p.SetT2(0.02); }, kbpC_T2NotBelowA},
      {"t1 below b, above a", [](P& p) { p.SetA(0.01); p.SetT2(0.005); p.SetT1(0.02); }, kPasses},
      {"t1 rule before t2 rule", [](P& p) { p.SetA(0.02); p.SetB(0.02); p.SetT1(0.02); p.SetT2(0.02); },
       kbpC_T1NotBelowB},
      {"signs before bounds", [](P& p) { p.SetT1(1); p.SetT2(0); }, kbpC_ThicknessT2NotPositive},
  });
}

TEST(KbpValidation, Tbeam) {
  using P = kbpC_TbeamProfile;
  // defaults: b = h = 0.1
  kbp_CheckCases<P>({
      {"b zero", [](P& p) { p.SetB(0); }, kbpC_DimensionBNotPositive},
      {"h zero", [](P& p) { p.SetH(0); }, kbpC_DimensionHNotPositive},
      {"tw zero", [](P& p) { p.SetTw(0); }, kbpC_ThicknessTwNotPositive},
      {"tf zero", [](P& p) { p.SetTf(0); }, kbpC_ThicknessTfNotPositive},
      {"tw before tf", [](P& p) { p.SetTw(0); p.SetTf(0); }, kbpC_ThicknessTwNotPositive},
      {"tf = h", [](P& p) { p.SetTf(0.1); }, kbpC_TfNotBelowH},
      {"tw = b", [](P& p) { p.SetTw(0.1); }, kbpC_TwNotBelowB},
      {"tf rule before tw rule", [](P& p) { p.SetTf(0.1); p.SetTw(0.1); }, kbpC_TfNotBelowH},
      {"l is free", [](P& p) { p.SetL(-1); }, kPasses},
  });
}

TEST(KbpValidation, Channel) {
  using P = kbpC_CbeamProfile;
  // defaults: h = 0.1, b1 = b2 = 0.05, t1 = t2 = t3 = 0.005
  kbp_CheckCases<P>({
      {"h zero", [](P& p) { p.SetH(0); }, kbpC_HeightNotPositive},
      {"web zero", [](P& p) { p.SetT3(0); }, kbpC_WebThicknessNotPositive},
      {"t2 zero", [](P& p) { p.SetT2(0); }, kbpC_ThicknessTwoNotPositive},
      {"web before t2", [](P& p) { p.SetT3(0); p.SetT2(0); }, kbpC_WebThicknessNotPositive},
      {"no flanges", [](P& p) { p.SetB1(0); p.SetB2(0); }, kbpC_NoFlangeWidth},
      {"t1 zero meets the all-thicknesses rule first", [](P& p) { p.SetT1(0); }, kbpC_ThicknessesNotPositive},
      {"t1 + t2 = h", [](P& p) { p.SetT1(0.05); p.SetT2(0.05); }, kbpC_T1PlusT2NotBelowHeight},
      {"t1 at half the height", [](P& p) { p.SetT1(0.05); p.SetT2(0.01); }, kbpC_ThicknessNotBelowHalfHeight},
      {"t2 above half the height", [](P& p) { p.SetT1(0.01); p.SetT2(0.06); }, kbpC_ThicknessNotBelowHalfHeight},
      {"web = b1", [](P& p) { p.SetB1(0.005); }, kbpC_T3NotBelowFlanges},
      {"web = b2", [](P& p) { p.SetB2(0.005); }, kbpC_T3NotBelowFlanges},
      {"web against an absent flange", [](P& p) { p.SetB2(0); }, kbpC_T3NotBelowFlanges},
      {"offset is free", [](P& p) { p.SetO(-1); }, kPasses},
  });
}

TEST(KbpValidation, Hat) {
  using P = kbpC_HatProfile;
  // defaults: h = 0.1, b1 = b2 = 0.05, t1 = t2 = t3 = 0.005
  kbp_CheckCases<P>({
      {"h zero", [](P& p) { p.SetH(0); }, kbpC_HeightNotPositive},
      {"web zero", [](P& p) { p.SetT3(0); }, kbpC_WebThicknessNotPositive},
      {"t1 zero", [](P& p) { p.SetT1(0); }, kbpC_ThicknessesNotPositive},
      {"t2 zero", [](P& p) { p.SetT2(0); }, kbpC_ThicknessesNotPositive},
      {"t1 + t2 = h", [](P& p) { p.SetT1(0.05); p.SetT2(0.05); }, kbpC_T1PlusT2NotBelowHeight},
      {"t1 above half the height", [](P& p) { p.SetT1(0.06); p.SetT2(0.01); }, kbpC_ThicknessNotBelowHalfHeight},
      {"web = b1/2", [](P& p) { p.SetB1(0.01); }, kbpC_T3NotBelowHalfB1},
      {"web just below b1/2", [](P& p) { p.SetB1(0.0101); }, kPasses},
      {"no second brim", [](P& p) { p.SetB2(0); }, kPasses},
      {"no brims meets the web rule first", [](P& p) { p.SetB1(0); p.SetB2(0); }, kbpC_T3NotBelowHalfB1},
      {"crown width is free", [](P& p) { p.SetB(0); }, kPasses},
  });
}

TEST(KbpValidation, Arbitrary) {
  using P = kbpC_ArbitraryProfile;
  auto table = [](cow_2DArray<double> t) { return [t](P& p) { p.SetTable(t); }; };
  kbp_CheckCases<P>({
      {"a segment of zero thickness", table({{0, 0, 0}, {1, 0, 0.1}, {1, 1, 0}}), kbpC_ThicknessesNotPositive},
      {"a negative thickness", table({{0, 0, 0}, {1, 0, -0.1}, {1, 1, 0.1}}), kbpC_ThicknessesNotPositive},
      {"two connected zero segments", table({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}), kbpC_ThicknessesNotPositive},
      {"the first point's cell is not a thickness", table({{0, 0, -7}, {1, 0, 0.1}}), kPasses},
      {"a single point", table({{0, 0, 0}}), kPasses},
      {"no points", table(cow_2DArray<double>()), kbpC_PointsNotSegmentsPlusOne},
      {"points without thicknesses", table({{0, 0}, {1, 0}, {1, 1}}), kbpC_PointsNotSegmentsPlusOne},
      {"a NaN thickness", table({{0, 0, 0}, {1, 0, kNaN}}), kbpC_ThicknessesNotPositive},
  });
}

}  // namespace
