#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Description.h"
#include "tests/support/qmx_test.h"

namespace {

// Every class a script constructs or reads members of says what it is and what each member
// means: a member added without its text, or a class without a summary, fails here by name.
TEST(Descriptions, EveryScriptedClassAndMemberIsDescribed) {
  qmx_StartLibrary();
  std::string missing;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) {
    if (!*md->ScriptName() && md->ScriptFields().empty()) continue;  // containers, wrappers
    if (!*md->Summary()) missing += md->Name().str() + " (summary)\n";
    for (const auto& f : md->ScriptFields())
      if (!*md->MemberDescription(f.scriptName)) missing += md->Name().str() + "." + f.scriptName + "\n";
  }
  EXPECT_EQ(missing, "");
}

// A text kept for a member that no longer exists, or for a class that is not registered, is a
// stale text that a renamed member left behind.
TEST(Descriptions, EveryTextNamesARegisteredClassAndMember) {
  qmx_StartLibrary();
  const auto& registrar = cls_ClassRegistrar::Instance();
  std::string stale;
  for (const cls_ClassMetadata* md : registrar.All()) {
    const cls_ClassDescription* d = cls_FindDescription(md->Name().view());
    if (!d) continue;
    std::set<std::string> members;
    for (const auto& f : md->ScriptFields()) members.insert(f.scriptName);
    std::set<std::string> seen;
    for (const auto& m : d->members) {
      if (!members.count(m.scriptName)) stale += md->Name().str() + "." + m.scriptName + "\n";
      if (!seen.insert(m.scriptName).second) stale += md->Name().str() + "." + m.scriptName + " (twice)\n";
      if (!*m.text) stale += md->Name().str() + "." + m.scriptName + " (empty)\n";
    }
    if (d->base && !registrar.ByName(d->base)) stale += md->Name().str() + " base " + d->base + "\n";
  }
  EXPECT_EQ(stale, "");
  // and no table describes a class that nothing registers
  for (const char* name : {"kadC_AdptMeshCtrl", "kamC_Tabular", "kmaC_Elastic"})
    EXPECT_NE(cls_FindDescription(name), nullptr) << name;
  EXPECT_EQ(cls_FindDescription("kadC_NoSuchClass"), nullptr);
}

TEST(Descriptions, MembersByScriptingNameWithUnitsAndLayouts) {
  qmx_StartLibrary();
  const auto& registrar = cls_ClassRegistrar::Instance();
  struct Case {
    const char* constructor;
    const char* member;
    const char* text;
  };
  const Case cases[] = {
      // under the scripting name, not the persistent one ("advection")
      {"AdaptiveMeshControl", "initialFeatureAngle", "Feature angle of the initial geometry (degrees, 0 to 180)"},
      {"TabularAmplitude", "data",
       "Amplitude at each time, times not decreasing (table: time, amplitude; at least two rows)"},
      // inherited from the amplitude base, described there once
      {"TabularAmplitude", "timeSpan", "Whether times count from the step's start or from the analysis' start"},
      {"DecayAmplitude", "timeSpan", "Whether times count from the step's start or from the analysis' start"},
      {"Elastic", "moduli", "Time scale of the moduli"},
  };
  for (const auto& c : cases) {
    const cls_ClassMetadata* md = registrar.ByScriptName(c.constructor);
    ASSERT_NE(md, nullptr) << c.constructor;
    EXPECT_STREQ(md->MemberDescription(c.member), c.text) << c.constructor << "." << c.member;
  }
  const cls_ClassMetadata* ctrl = registrar.ByScriptName("AdaptiveMeshControl");
  EXPECT_STREQ(ctrl->MemberDescription("advection"), "");  // the persistent name is no scripting name
  EXPECT_STREQ(ctrl->MemberDescription("nonsense"), "");
}

// The codes a class's own checks raise, in the order of the checks, with their module's messages.
TEST(Descriptions, ValidationCodesInCheckOrderWithTheirMessages) {
  qmx_StartLibrary();
  const cls_ClassMetadata* ctrl = cls_ClassRegistrar::Instance().ByScriptName("AdaptiveMeshControl");
  ASSERT_NE(ctrl->Description(), nullptr);
  const auto codes = ctrl->Description()->codes;
  // code 6 guards two weights but is listed once; 3, 10 and 11 belong to the table but no check
  EXPECT_EQ(std::vector<int>(codes.begin(), codes.end()), (std::vector<int>{4, 5, 6, 7, 8, 13, 9, 12}));
  EXPECT_STREQ(cls_FindErrorMessage("kadC_AdptMeshCtrl", 13),
               "Original configuration projection weight must be greater than or equal to zero.");
  EXPECT_STREQ(cls_FindErrorMessage("kadC_AdptMeshDomain", 1), "Initial remeshing sweeps must be greater than zero.");
  EXPECT_STREQ(cls_FindErrorMessage("kadC_AdptMeshCtrl", 14), "");  // outside the table
  EXPECT_STREQ(cls_FindErrorMessage("kadC_NoSuchClass", 1), "");
  // every listed code of every class has its message
  std::string silent;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
    if (const cls_ClassDescription* d = md->Description())
      for (int code : d->codes)
        if (!*cls_FindErrorMessage(md->Name().view(), code)) silent += md->Name().str() + " " + std::to_string(code) + "\n";
  EXPECT_EQ(silent, "");
}

// The registry itself, with tables of a module that only this test starts and stops.
constexpr cls_MemberDescription kTestBaseMembers[] = {{"shared", "Shared by every derived class"}};
constexpr cls_MemberDescription kTestDerivedMembers[] = {{"own", "Its own"}, {"shared", "Overridden here"}};
constexpr cls_ClassDescription kTestTableA[] = {
    {"zzzC_Base", "The base.", kTestBaseMembers},
    {"zzzC_Loop", "Names itself as its base.", {}, "zzzC_Loop"},
};
constexpr cls_ClassDescription kTestTableB[] = {
    {"zzzC_Derived", "The derived.", kTestDerivedMembers, "zzzC_Base"},
    {"zzzC_Other", "Inherits only.", {}, "zzzC_Base"},
};

TEST(Descriptions, RegistryLooksUpBasesAndForgetsAStoppedModule) {
  cls_RegisterDescriptions("zzz", kTestTableA);
  cls_RegisterDescriptions("zzz", kTestTableB);  // a module may register several tables
  ASSERT_NE(cls_FindDescription("zzzC_Derived"), nullptr);
  EXPECT_STREQ(cls_FindDescription("zzzC_Derived")->summary, "The derived.");
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Derived", "own"), "Its own");
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Derived", "shared"), "Overridden here");  // own text first
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Other", "shared"), "Shared by every derived class");
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Other", "own"), "");
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Loop", "anything"), "");  // ends although it loops
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Unknown", "own"), "");
  cls_UnregisterDescriptions("zzz");
  EXPECT_EQ(cls_FindDescription("zzzC_Base"), nullptr);
  EXPECT_EQ(cls_FindDescription("zzzC_Derived"), nullptr);
  EXPECT_STREQ(cls_FindMemberDescription("zzzC_Derived", "own"), "");
  cls_UnregisterDescriptions("zzz");  // twice is harmless
  // other modules keep theirs
  qmx_StartLibrary();
  EXPECT_NE(cls_FindDescription("kadC_AdptMeshCtrl"), nullptr);
}

}  // namespace
