// Mean-field homogenization: the constituents' rules in their order with their exact messages,
// the option's own rules, the constituent repository and its shortcuts, and both reached and
// carried through the file by scripting names.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "kma/kmaC_FieldConstituentInFieldConstituentContainerShortcut.h"
#include "kma/kmaC_FieldConstituentShortcut.h"
#include "kma/kmaC_MeanFieldHomogenization.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/kma/kmaT_Support.h"

namespace {

using FC = kmaC_FieldConstituent;
constexpr double kBlank = 1.7976931348623157e308;

const char* const kFraction = "The value of constituent volume fraction must be less than one and greater than zero.";
const char* const kTable = "Constituent table is incomplete.";
const char* const kIsotropization = "The value of isotropization coefficient must be greater than or equal to one";
const char* const kBlankRatio = "Aspect ratio must be blank for cylinder-shaped or spherical-shaped inclusions.";
const char* const kOne = "Aspect ratio must be one for spherical-shaped inclusions.";
const char* const kBelowOne = "Aspect ratio must be less than one for oblate-shaped or penny-shaped inclusions.";
const char* const kAboveOne = "Aspect ratio must be greater than one for prolate-shaped.";

FC Inclusion(FC::ShapeEnm shape, double ratio) {
  FC c;
  c.SetType(FC::TypeEnm::INCLUSION);
  c.SetShape(shape);
  c.SetAspectRatio(ratio);
  return c;
}

TEST(KmaFieldConstituent, RulesFireAtTheirBoundariesWithTheirMessages) {
  kmaT_Start();
  using S = FC::ShapeEnm;
  struct Case {
    const char* what;
    std::function<FC()> make;
    const char* message;  // null: valid
  };
  const Case cases[] = {
      {"volume fraction 0", [] { FC c; c.SetVolumeFraction(0.0); return c; }, kFraction},
      {"volume fraction 1", [] { FC c; c.SetVolumeFraction(1.0); return c; }, kFraction},
      {"volume fraction -0.2", [] { FC c; c.SetVolumeFraction(-0.2); return c; }, kFraction},
      {"volume fraction 0.999", [] { FC c; c.SetVolumeFraction(0.999); return c; }, nullptr},
      {"isotropization 0.99", [] { FC c; c.SetIsotropizationCoefficient(0.99); return c; }, kIsotropization},
      {"isotropization 1", [] { FC c; c.SetIsotropizationCoefficient(1.0); return c; }, nullptr},
      {"cylinder with a ratio", [] { return Inclusion(S::CYLINDER, 10.0); }, kBlankRatio},
      {"cylinder blank", [] { return Inclusion(S::CYLINDER, kBlank); }, nullptr},
      {"sphere 2", [] { return Inclusion(S::SPHERE, 2.0); }, kOne},
      {"sphere 1", [] { return Inclusion(S::SPHERE, 1.0); }, nullptr},
      {"oblate 1", [] { return Inclusion(S::OBLATE, 1.0); }, kBelowOne},
      {"oblate blank", [] { return Inclusion(S::OBLATE, kBlank); }, kBelowOne},
      {"oblate 0.2", [] { return Inclusion(S::OBLATE, 0.2); }, nullptr},
      {"penny 1.5", [] { return Inclusion(S::PENNY, 1.5); }, kBelowOne},
      {"prolate 1", [] { return Inclusion(S::PROLATE, 1.0); }, kAboveOne},
      {"prolate blank", [] { return Inclusion(S::PROLATE, kBlank); }, kAboveOne},
      {"prolate 20", [] { return Inclusion(S::PROLATE, 20.0); }, nullptr},
      // The matrix has no shape of its own: its aspect ratio is not checked.
      {"matrix cylinder", [] { FC c = Inclusion(S::CYLINDER, 3.0); c.SetType(FC::TypeEnm::MATRIX); return c; }, nullptr},
      {"fixed without table", [] { FC c; c.SetOrientation(FC::OrientationEnm::FIXED); return c; }, kTable},
      {"fixed with two columns",
       [] { FC c; c.SetOrientation(FC::OrientationEnm::FIXED); c.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{1, 0}})); return c; }, kTable},
      {"fixed with a direction",
       [] { FC c; c.SetOrientation(FC::OrientationEnm::FIXED); c.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{1, 0, 0}})); return c; }, nullptr},
      {"tensor with five columns",
       [] {
         FC c;
         c.SetOrientation(FC::OrientationEnm::ORIENTATION_TENSOR);
         c.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{0.7, 0.2, 0.1, 0, 0}}));
         return c;
       },
       kTable},
      {"tensor with six columns",
       [] {
         FC c;
         c.SetOrientation(FC::OrientationEnm::ORIENTATION_TENSOR);
         c.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{0.7, 0.2, 0.1, 0, 0, 0}}));
         return c;
       },
       nullptr},
      {"matrix needs no orientation table",
       [] { FC c; c.SetType(FC::TypeEnm::MATRIX); c.SetOrientation(FC::OrientationEnm::FIXED); return c; }, nullptr},
      {"zero row", [] { FC c; c.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{1, 0, 0}, {0, 0, 0}})); return c; }, kZeroRow},
      // Order: dependencies, volume fraction, isotropization, aspect ratio, orientation table.
      {"dependencies before fraction", [] { FC c; c.SetDependencies(-1); c.SetVolumeFraction(2.0); return c; }, kDependencies},
      {"fraction before isotropization",
       [] { FC c; c.SetVolumeFraction(2.0); c.SetIsotropizationCoefficient(0.0); return c; }, kFraction},
      {"isotropization before ratio",
       [] { FC c = Inclusion(S::PROLATE, 0.5); c.SetIsotropizationCoefficient(0.0); return c; }, kIsotropization},
      {"ratio before orientation table",
       [] { FC c = Inclusion(S::PROLATE, 0.5); c.SetOrientation(FC::OrientationEnm::FIXED); return c; }, kAboveOne},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const FC fc = c.make();
    const FC before = fc;
    if (c.message) kmaT_ExpectFailure([&] { fc.AssertValid(); }, c.message);
    else EXPECT_NO_THROW(fc.AssertValid());
    EXPECT_TRUE(fc == before);
  }
}

TEST(KmaMeanFieldHomogenization, AngleIncrementMustBePositiveAfterTheDependencies) {
  kmaT_Start();
  const char* const kAngle = "The value of angle subdivision increment must be positive.";
  struct Case {
    int angle;
    int dependencies;
    const char* message;
  };
  const Case cases[] = {{0, 0, kAngle}, {-5, 0, kAngle}, {1, 0, nullptr}, {0, -1, kDependencies}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.angle);
    kmaC_MeanFieldHomogenization m;
    m.SetAngleIncrement(c.angle);
    m.SetDependencies(c.dependencies);
    if (c.message) kmaT_ExpectFailure([&] { m.AssertValid(); }, c.message);
    else EXPECT_NO_THROW(m.AssertValid());
  }
  EXPECT_STREQ(kmaC_MeanFieldHomogenization().UnknownSubOptionMessage(), "Material option has no suboptions");
}

TEST(KmaFieldConstituentShortcut, ReachesTheConstituentByNameAndSeparatesItOnModification) {
  kmaT_Start();
  ddr_Model model;
  auto& constituents = dynamic_cast<kmaC_FieldConstituentContainer&>(*model.ModifyRepository("fieldConstituents"));
  FC fiber = Inclusion(FC::ShapeEnm::PROLATE, 20.0);
  fiber.SetMaterial("Glass");
  constituents.Insert("Fiber", fiber);
  omu_ChangeHistory::Instance().Clear();

  const kmaC_FieldConstituentShortcut sc = kmaC_FieldConstituentInFieldConstituentContainerShortcut("Fiber");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"fieldConstituents", "Fiber"}));
  ASSERT_NE(sc.ConstGet(model), nullptr);
  EXPECT_EQ(sc.ConstGet(model)->GetMaterial(), "Glass");
  const ddr_Model before = model;
  sc.Get(model).SetAspectRatio(30.0);
  EXPECT_EQ(sc.ConstGet(before)->GetAspectRatio(), 20.0);
  EXPECT_EQ(sc.ConstGet(model)->GetAspectRatio(), 30.0);
  const std::vector<omu_PrimTuple> expected = {{"kmaC_FieldConstituentContainer", "Modify", "Fiber"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
  EXPECT_EQ(kmaC_FieldConstituentShortcut(kmaC_FieldConstituentInFieldConstituentContainerShortcut("Resin")).ConstGet(model),
            nullptr);
}

TEST(KmaMeanFieldScript, AHomogenizedCompositeIsBuiltByScriptAndCarriedThroughTheFile) {
  kmaT_Start();
  cmd_Session s;
  Ok(s, R"({"op":"create","path":["M"]})");
  Ok(s, R"({"op":"create","path":["M","fieldConstituents","Resin"],"type":"FieldConstituent","values":{"material":"Epoxy","type":"MATRIX"}})");
  Ok(s, R"({"op":"create","path":["M","fieldConstituents","Fiber"],"type":"FieldConstituent",)"
        R"("values":{"material":"Glass","volumeFraction":0.3,"shape":"PROLATE","aspectRatio":25,"orientation":"FIXED","table":[[1,0,0]]}})");
  Ok(s, R"({"op":"create","path":["M","materials","Composite"],"type":"Material"})");
  Ok(s, R"({"op":"set","path":["M","materials","Composite","meanFieldHomogenization"],"type":"MeanFieldHomogenization",)"
        R"("values":{"formulation":"BALANCED","angleIncrement":10,"constituents":["Resin","Fiber"]}})");
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","fieldConstituents","Fiber","shape"]})"), "PROLATE");
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","Composite","meanFieldHomogenization","constituents"]})"),
            cmd_Json::parse(R"(["Resin","Fiber"])"));
  Ok(s, R"({"op":"validate","path":["M","fieldConstituents","Fiber"]})");
  Ok(s, R"({"op":"validate","path":["M","materials","Composite"]})");

  // A bad literal is refused and changes nothing.
  const cmd_Json bad = s.ExecuteLine(R"({"op":"set","path":["M","fieldConstituents","Fiber","shape"],"value":"prolate"})");
  EXPECT_FALSE(bad.value("ok", true));
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","fieldConstituents","Fiber","shape"]})"), "PROLATE");
  // A failing rule is reported with its message.
  Ok(s, R"({"op":"set","path":["M","fieldConstituents","Fiber","aspectRatio"],"value":0.5})");
  const cmd_Json invalid = s.ExecuteLine(R"({"op":"validate","path":["M","fieldConstituents","Fiber"]})");
  EXPECT_FALSE(invalid.value("ok", true));
  EXPECT_EQ(invalid["error"]["message"], kAboveOne);
  Ok(s, R"({"op":"set","path":["M","fieldConstituents","Fiber","aspectRatio"],"value":25})");

  const std::string file = qmx_TempDir("kma-mean-field") + "/composite.odb";
  dbf_Save(s.Database(), file);
  const ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == s.Database());
  EXPECT_EQ(kmaT_Query(file, "SELECT count(*) FROM kmaC_FieldConstituent"), std::vector<std::string>{"2"});
  EXPECT_EQ(kmaT_Query(file, "SELECT count(*) FROM kmaC_MeanFieldHomogenization"), std::vector<std::string>{"1"});
}

}  // namespace
