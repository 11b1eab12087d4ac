#include <gtest/gtest.h>

#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

#include <string>
#include <vector>

namespace {

const cls_ClassMetadata& Ctrl() {
  qmx_StartLibrary();
  return *cls_ClassRegistrar::Instance().ByScriptName("AdaptiveMeshControl");
}

TEST(ScriptAccess, MembersByScriptingName) {
  const cls_ClassMetadata& md = Ctrl();
  EXPECT_EQ(md.Name(), "kadC_AdptMeshCtrl");
  EXPECT_EQ(md.FindScriptField("advection"), nullptr);  // offered as "remapping" only
  const cls_ScriptField* remap = md.FindScriptField("remapping");
  ASSERT_NE(remap, nullptr);
  EXPECT_STREQ(remap->persistentName, "advection");
  EXPECT_EQ(remap->type, 14);
  ASSERT_NE(md.FindScriptField("meshingPredictor"), nullptr);
  EXPECT_STREQ(md.FindScriptField("meshingPredictor")->persistentName, "remeshPredictor");

  kadC_AdptMeshCtrl c;
  remap->set(&c, cow_String("FIRST_ORDER_ADVECTION"));
  EXPECT_EQ(c.GetAdvection(), kadC_AdptMeshCtrl::AdvectionEnm::FIRST_ORDER_ADVECTION);
  EXPECT_EQ(std::get<cow_String>(remap->get(&c)), "FIRST_ORDER_ADVECTION");
  // an integer goes through the value constructor
  remap->set(&c, std::int32_t{1});
  EXPECT_EQ(c.GetAdvection(), kadC_AdptMeshCtrl::AdvectionEnm::SECOND_ORDER_ADVECTION);
  const cls_ScriptField* angle = md.FindScriptField("initialFeatureAngle");
  angle->set(&c, std::int32_t{45});  // an integer is a number
  EXPECT_EQ(c.GetInitialFeatureAngle(), 45.0);
}

TEST(ScriptAccess, RefusalsLeaveTheObjectUnchanged) {
  const cls_ClassMetadata& md = Ctrl();
  kadC_AdptMeshCtrl c;
  const kadC_AdptMeshCtrl before = c;
  auto e1 = qmx_Catch<nex_CmdError>([&] { md.FindScriptField("remapping")->set(&c, cow_String("first_order_advection")); });
  EXPECT_EQ(e1.Message(),
            "omu_PrimEnum(const cow_String&) - str not allowed: first_order_advection  Permissible: "
            "FIRST_ORDER_ADVECTION, SECOND_ORDER_ADVECTION");
  auto e2 = qmx_Catch<nex_CmdError>([&] { md.FindScriptField("remapping")->set(&c, std::int32_t{5}); });
  EXPECT_EQ(e2.Message(),
            "omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 5  Permissible: FIRST_ORDER_ADVECTION, "
            "SECOND_ORDER_ADVECTION");
  auto e3 = qmx_Catch<nex_CmdError>([&] { md.FindScriptField("initialFeatureAngle")->set(&c, cow_String("30")); });
  EXPECT_EQ(e3.Message(), "The member \"initialFeatureAngle\" takes a number, not a string");
  EXPECT_EQ(c, before);

  const cls_ClassMetadata& dom = *cls_ClassRegistrar::Instance().ByScriptName("AdaptiveMeshDomain");
  kadC_AdptMeshDomain d;
  EXPECT_THROW(dom.FindScriptField("meshSweeps")->set(&d, 2.5), nex_CmdError);
  dom.FindScriptField("region")->set(&d, cow_String("Set-1"));
  EXPECT_EQ(d.GetRegion().Name(), "Set-1");
  dom.FindScriptField("initialMeshSweeps")->set(&d, std::int32_t{0});
  EXPECT_EQ(d.GetInitialRemeshingSweeps(), 0);
}

// A constructor name finds the first registered class that answers to it, every scripting name
// and variant of every class alike; a name no class answers to finds none.
TEST(ScriptAccess, ConstructorNamesFindTheFirstClassThatAnswers) {
  qmx_StartLibrary();
  const cls_ClassRegistrar& classes = cls_ClassRegistrar::Instance();
  std::size_t names = 0;
  for (const cls_ClassMetadata* md : classes.All()) {
    std::vector<std::string> own;
    if (*md->ScriptName()) own.emplace_back(md->ScriptName());
    for (const char* v : md->ScriptVariants()) own.emplace_back(v);
    for (const std::string& name : own) {
      const cls_ClassMetadata* first = nullptr;
      for (const cls_ClassMetadata* c : classes.All())
        if (c->AnswersTo(name)) {
          first = c;
          break;
        }
      ASSERT_NE(first, nullptr) << name;
      EXPECT_EQ(classes.ByScriptName(name), first) << name;
      ++names;
    }
  }
  EXPECT_GT(names, 200u);  // every module's classes were seen
  for (const char* none : {"", "material", "Material ", "kmaC_Material", "DiscreteFieldFromAnalyticX"})
    EXPECT_EQ(classes.ByScriptName(none), nullptr) << none;
}

}  // namespace
