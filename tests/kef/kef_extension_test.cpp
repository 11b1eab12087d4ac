// The engineering features as one object of each model: not a repository, reached by scripts
// through its containers, separated copy-on-write, saved and read back with the model, and
// restored whole when a command inside it fails.
#include <nlohmann/json.hpp>

#include <algorithm>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kef/kefC_EngineeringFeatures.h"
#include "kef/kefC_NonstructuralMass.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_PointMassInertia.h"
#include "kef/kefC_SpringToGround.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_Record.h"
#include "tests/kef/kef_test.h"

namespace {

const kefC_EngineeringFeatures* Features(const ddr_Model& m) {
  return static_cast<const kefC_EngineeringFeatures*>(static_cast<const mdl_Extension*>(m.FindObject("engineeringFeatures")));
}

cmd_Json Ok(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_TRUE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
  return r["result"];
}

cmd_Json Fails(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_FALSE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
  return r.contains("error") ? r["error"] : cmd_Json();
}

class KefExtension : public ::testing::Test {
 protected:
  void SetUp() override {
    kef_Start();
    Ok(s, R"({"op":"create","path":["Model-1"]})");
    omu_ChangeHistory::Instance().Clear();
  }
  const ddr_Model& Model() { return *s.Database().FindModel("Model-1"); }
  cmd_Session s;
};

TEST_F(KefExtension, EachModelHoldsOneObjectThatIsNotARepository) {
  ddr_Model m;
  EXPECT_EQ(m.FindRepository("engineeringFeatures"), nullptr);
  const std::vector<cow_String> repos = m.RepositoryNames();
  EXPECT_EQ(std::count(repos.begin(), repos.end(), cow_String("engineeringFeatures")), 0);
  EXPECT_EQ(m.ObjectNames(), std::vector<cow_String>{"engineeringFeatures"});
  const cls_ClassMetadata* cls = nullptr;
  ASSERT_NE(m.FindObject("engineeringFeatures", &cls), nullptr);
  EXPECT_EQ(cls->Name(), "kefC_EngineeringFeatures");
  EXPECT_EQ(m.FindObject("inertias"), nullptr);
  EXPECT_EQ(m.FindObject("constraints"), nullptr);  // a repository is not an object extension

  // a copy of the model shares the object until one side modifies it
  ddr_Model copy = m;
  EXPECT_EQ(copy.FindObject("engineeringFeatures"), m.FindObject("engineeringFeatures"));
  auto* mine = static_cast<kefC_EngineeringFeatures*>(static_cast<mdl_Extension*>(copy.ModifyObject("engineeringFeatures")));
  kefC_PointMassInertia pm;
  pm.SetMass(1.0);
  mine->GetInertiaContainer().Insert("PM-1", pm);
  EXPECT_NE(copy.FindObject("engineeringFeatures"), m.FindObject("engineeringFeatures"));
  EXPECT_EQ(Features(m)->GetInertiaContainer().Size(), 0u);
  EXPECT_EQ(Features(copy)->GetInertiaContainer().Size(), 1u);
  EXPECT_FALSE(copy == m);
}

TEST_F(KefExtension, ScriptsReachAFeatureThroughItsContainer) {
  Ok(s, R"({"op":"create","path":["Model-1","engineeringFeatures","inertias","PM-1"],"type":"PointMassInertia",
            "values":{"region":"Set-1","mass":2.5,"localCsys":"Datum csys-1"}})");
  const std::vector<omu_PrimTuple> inserted = {{"kefC_InertiaContainer", "Insert", "PM-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), inserted);
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["Model-1","engineeringFeatures","inertias","PM-1","mass"]})"), 2.5);
  EXPECT_EQ(Ok(s, R"({"op":"list","path":["Model-1","engineeringFeatures"]})"),
            cmd_Json::parse(R"(["inertias","fasteners","cracks","springDashpots","imperfections"])"));
  EXPECT_EQ(Ok(s, R"({"op":"list","path":["Model-1","engineeringFeatures","inertias"]})"), cmd_Json::parse(R"(["PM-1"])"));
  const cmd_Json models = Ok(s, R"({"op":"list","path":["Model-1"]})");
  EXPECT_NE(std::find(models.begin(), models.end(), "engineeringFeatures"), models.end());

  Ok(s, R"({"op":"create","path":["Model-1","engineeringFeatures","springDashpots","Spring-1"],"type":"SpringDashpotToGround",
            "values":{"applySpring":true,"springStiffness":1000,"dof1":3,"region":"Set-2"}})");
  Ok(s, R"({"op":"set","path":["Model-1","engineeringFeatures","springDashpots","Spring-1","dashpotCoefficient"],"value":0.5})");
  const cmd_Json spring = Ok(s, R"({"op":"get","path":["Model-1","engineeringFeatures","springDashpots","Spring-1"]})");
  EXPECT_EQ(spring["type"], "SpringDashpotToGround");
  EXPECT_EQ(spring["dashpotCoefficient"], 0.5);
  EXPECT_EQ(spring["springStiffness"], 1000.0);
  EXPECT_EQ(Ok(s, R"({"op":"validate","path":["Model-1","engineeringFeatures"]})")["validated"], 3);

  // the whole model is validated through the object, and a failure names its own path
  Ok(s, R"({"op":"set","path":["Model-1","engineeringFeatures","inertias","PM-1"],"values":{"mass1":1.0}})");
  const cmd_Json e = Fails(s, R"({"op":"validate","path":["Model-1"]})");
  EXPECT_EQ(e["message"], "Point mass/inertia cannot contain both isotropic and anisotropic mass values.");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["Model-1","engineeringFeatures","inertias","PM-1"])"));
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["Model-1"]})")["engineeringFeatures"]["inertias"]["PM-1"]["mass1"], 1.0);

  Ok(s, R"({"op":"delete","path":["Model-1","engineeringFeatures","inertias","PM-1"]})");
  EXPECT_EQ(Features(Model())->GetInertiaContainer().Size(), 0u);
}

TEST_F(KefExtension, WrongPathsAreRefusedAndChangeNothing) {
  const ddr_Database before = s.Database();
  struct Case {
    const char* line;
    const char* message;
  };
  const Case cases[] = {
      {R"({"op":"get","path":["Model-1","engineeringFeatures","masses"]})",
       "kefC_EngineeringFeatures has no member \"masses\"; its members are inertias, fasteners, cracks, springDashpots, "
       "imperfections"},
      {R"({"op":"get","path":["Model-1","engineeringFeatures","inertias","PM-9"]})", "There is no \"PM-9\" in inertias"},
      {R"({"op":"create","path":["Model-1","engineeringFeatures","inertias","F-1"],"type":"PointFastener"})", nullptr},
      {R"({"op":"delete","path":["Model-1","engineeringFeatures","inertias"]})",
       "the member \"inertias\" of kefC_EngineeringFeatures always holds an object; it cannot be deleted"},
      {R"({"op":"create","path":["Model-1","engineeringFeatures"],"type":"PointMassInertia"})",
       "The repositories of a model come with it; \"engineeringFeatures\" cannot be created"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.line);
    const cmd_Json e = Fails(s, c.line);
    EXPECT_EQ(e["kind"], "CmdException");
    if (c.message) {
      EXPECT_EQ(e["message"], c.message);
    }
  }
  EXPECT_TRUE(s.Database() == before);
}

TEST_F(KefExtension, AFailedCommandInsideTheObjectPutsItBack) {
  Ok(s, R"({"op":"create","path":["Model-1","engineeringFeatures","inertias","NSM-1"],"type":"NonstructuralMass",
            "values":{"magnitude":1.5}})");
  const ddr_Database before = s.Database();
  omu_ChangeHistory::Instance().Clear();
  // the magnitude is set before the unknown literal is refused; the failure undoes it
  const cmd_Json e = Fails(s, R"({"op":"set","path":["Model-1","engineeringFeatures","inertias","NSM-1"],
                                  "values":{"magnitude":9.0,"units":"KILOGRAMS"}})");
  EXPECT_EQ(e["message"].get<std::string>().rfind("omu_PrimEnum(const cow_String&) - str not allowed: KILOGRAMS  Permissible: ", 0), 0u);
  EXPECT_TRUE(s.Database() == before);
  const auto& nsm = dynamic_cast<const kefC_NonstructuralMass&>(*Features(Model())->GetInertiaContainer().ConstGet("NSM-1"));
  EXPECT_EQ(nsm.GetMagnitude(), 1.5);
  EXPECT_EQ(nsm.GetUnits(), kefC_UnitsEnum::TOTAL_MASS);
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());
}

TEST_F(KefExtension, NumbersThatMayHoldALiteralTakeItsTextAndRefuseOthers) {
  Ok(s, R"({"op":"create","path":["Model-1","engineeringFeatures","fasteners","F-1"],"type":"PointFastener",
            "values":{"influenceRadius":4.5,"maximumLayers":3,"sectionName":"C-1"}})");
  const std::string f = R"("path":["Model-1","engineeringFeatures","fasteners","F-1")";
  EXPECT_EQ(Ok(s, R"({"op":"get",)" + f + R"(,"influenceRadius"]})"), 4.5);
  EXPECT_EQ(Ok(s, R"({"op":"get",)" + f + R"(,"maximumLayers"]})"), 3);
  Ok(s, R"({"op":"set",)" + f + R"(],"values":{"influenceRadius":"WHOLE_SURFACE","maximumLayers":"ALL"}})");
  EXPECT_EQ(Ok(s, R"({"op":"get",)" + f + R"(,"influenceRadius"]})"), "WHOLE_SURFACE");
  EXPECT_EQ(Ok(s, R"({"op":"get",)" + f + R"(,"maximumLayers"]})"), "ALL");
  const auto& point = dynamic_cast<const kefC_PointFastener&>(*Features(Model())->GetFastenerContainer().ConstGet("F-1"));
  EXPECT_TRUE(point.IsWholeSurface());
  EXPECT_TRUE(point.IsAllLayers());
  EXPECT_EQ(point.GetMaximumLayers(), 2147483647);
  EXPECT_EQ(point.GetInfluenceRadius(), 1.7976931348623157e308);

  const ddr_Database before = s.Database();
  struct Case {
    const char* values;
    const char* message;
  };
  const Case cases[] = {
      {R"({"maximumLayers":"all"})", "omu_PrimEnum(const cow_String&) - str not allowed: all  Permissible: ALL"},
      {R"({"influenceRadius":"ALL"})", "omu_PrimEnum(const cow_String&) - str not allowed: ALL  Permissible: WHOLE_SURFACE"},
      {R"({"maximumLayers":2.5})", nullptr},
      {R"({"searchRadius":"WHOLE_SURFACE"})", nullptr},  // a plain number takes no literal
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.values);
    const cmd_Json e = Fails(s, R"({"op":"set",)" + f + R"(],"values":)" + c.values + "}");
    if (c.message) {
      EXPECT_EQ(e["message"], c.message);
    }
  }
  EXPECT_TRUE(s.Database() == before);
}

TEST_F(KefExtension, AnUnknownStepAfterTheModelListsTheObjectToo) {
  const cmd_Json e = Fails(s, R"({"op":"get","path":["Model-1","engineeringFeature"]})");
  const std::string m = e["message"].get<std::string>();
  EXPECT_EQ(m.rfind(R"(The model "Model-1" has no repository "engineeringFeature"; it has )", 0), 0u) << m;
  EXPECT_NE(m.find(", engineeringFeatures"), std::string::npos) << m;
  EXPECT_NE(m.find("constraints"), std::string::npos) << m;
}

TEST_F(KefExtension, AModelStoredWithoutTheObjectGetsAnEmptyOneAndKeepsTheRest) {
  ddr_Model m;
  auto* features = static_cast<kefC_EngineeringFeatures*>(static_cast<mdl_Extension*>(m.ModifyObject("engineeringFeatures")));
  kefC_PointMassInertia pm;
  pm.SetMass(3.0);
  features->GetInertiaContainer().Insert("PM-1", pm);
  cls_Record rec = cls_ToRecord(m);
  auto extensions = std::get<std::vector<cls_RecordPtr>>(*rec.Find("extensions"));
  const std::size_t stored = extensions.size();
  std::erase_if(extensions, [](const cls_RecordPtr& e) { return e->typeId == kefC_EngineeringFeatures::TypeId(); });
  ASSERT_EQ(extensions.size(), stored - 1);
  rec.Set("extensions", extensions);

  const ddr_Model back{cls_RecordReader(rec)};
  ASSERT_NE(Features(back), nullptr);
  EXPECT_EQ(Features(back)->GetInertiaContainer().Size(), 0u);
  EXPECT_EQ(back.ObjectNames(), std::vector<cow_String>{"engineeringFeatures"});
  EXPECT_EQ(back.RepositoryNames(), m.RepositoryNames());
  // read with it, the object comes back as it was
  EXPECT_TRUE(ddr_Model(cls_RecordReader(cls_ToRecord(m))) == m);
}

TEST_F(KefExtension, AHeldExtensionIsPutBackWholeAndAForeignOneRefused) {
  ddr_Model m;
  const ddr_Model::ExtensionHandle held = *m.FindExtension("engineeringFeatures");
  auto* features = static_cast<kefC_EngineeringFeatures*>(static_cast<mdl_Extension*>(m.ModifyObject("engineeringFeatures")));
  features->GetSpringContainer().Insert("S-1", kefC_SpringToGround());
  EXPECT_EQ(Features(m)->GetSpringContainer().Size(), 1u);
  m.ReplaceExtension(held);
  EXPECT_EQ(Features(m)->GetSpringContainer().Size(), 0u);
  EXPECT_EQ(m.FindObject("engineeringFeatures"), &held.Get());

  // A model made while the module's prototype was withdrawn has no such extension to replace.
  ddr_Model::UnRegisterExtension("engineeringFeatures");
  ddr_Model without;
  ddr_Model::RegisterExtension(kefC_EngineeringFeatures());
  EXPECT_EQ(without.FindExtension("engineeringFeatures"), nullptr);
  auto e = qmx_Catch<nex_CmdError>([&] { without.ReplaceExtension(held); });
  EXPECT_STREQ(e.what(), "The model has no extension \"engineeringFeatures\" to replace");
  EXPECT_EQ(without.FindExtension("engineeringFeatures"), nullptr);
}

}  // namespace
