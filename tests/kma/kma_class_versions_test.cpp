// The versions of the magnetic permeability and of the crush stress velocity factor: the one step
// of the first leads to its current version, the second never changed; files that hold them at
// versions this library never had are refused with the newer-version message.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

std::map<int, std::pair<int, bool>> StepsOf(const std::string& className) {
  dbc_DatabaseConverter steps;
  dbc_DatabaseConverter::CollectRegistered(steps);
  std::map<int, std::pair<int, bool>> out;  // from -> (target, has function)
  for (const auto& [target, conv] : steps.Converters())
    for (const auto& s : conv->Steps())
      if (s->ClassName() == className) out[s->From()] = {s->Target(), s->Function() != nullptr};
  return out;
}

TEST(KmaClassVersions, MagneticPermeabilityStepsFrom1628To1701AndTheVelocityFactorNeverChanged) {
  kmaT_Start();
  const cls_ClassRegistrar& r = cls_ClassRegistrar::Instance();
  ASSERT_NE(r.ByName("kmaC_MagneticPermeability"), nullptr);
  ASSERT_NE(r.ByName("kmaC_CrushStressVelocityFactor"), nullptr);
  EXPECT_EQ(r.ByName("kmaC_MagneticPermeability")->Version(), 1701);
  EXPECT_EQ(r.ByName("kmaC_CrushStressVelocityFactor")->Version(), 203);
  EXPECT_EQ(StepsOf("kmaC_MagneticPermeability"), (std::map<int, std::pair<int, bool>>{{1628, {1701, true}}}));
  EXPECT_TRUE(StepsOf("kmaC_CrushStressVelocityFactor").empty());
}

TEST(KmaClassVersions, APermeabilityOf1628ReadsBackLinear) {
  kmaT_Start();
  kmaT_ExpectOldLayoutsRead(qmx_TempDir("kma-class-versions"),
                            {{"kmaC_MagneticPermeability", 1628, {"nonlinearBH"}, "magneticPermeability", "MagneticPermeability",
                              R"({"nonlinearBH":true,"dependencies":1,"table":[[0,0,0],[1,2,0]]})",
                              R"({"nonlinearBH":false,"dependencies":1,"table":[[0,0,0],[1,2,0]]})"}});
}

// Earlier builds of this library wrote these classes at 2002 and 2218; those versions are not in
// the history of either class, so such a file is refused whole, as a newer one is, and nothing is
// read from it.
TEST(KmaClassVersions, FilesHoldingTheClassesAtVersionsTheyNeverHadAreRefused) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-class-versions-newer");
  struct Case {
    const char* className;
    int version;
    const char* slot;
    const char* type;
    const char* values;
    const char* message;
  };
  const Case cases[] = {
      {"kmaC_MagneticPermeability", 2002, "magneticPermeability", "MagneticPermeability", R"({"table":[[1.2]]})",
       "class kmaC_MagneticPermeability is stored at version 2002, newer than this library's version 1701"},
      {"kmaC_CrushStressVelocityFactor", 2218, "crushStress", "CrushStress",
       R"({"table":[[1]],"crushStressVelocityFactor":{"type":"CrushStressVelocityFactor","table":[[1,2]]}})",
       "class kmaC_CrushStressVelocityFactor is stored at version 2218, newer than this library's version 203"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.className);
    const std::string file = dir + "/" + c.className + ".odb";
    cmd_Session s;
    ASSERT_TRUE(s.Execute({{"op", "create"}, {"path", {"M"}}})["ok"].get<bool>());
    ASSERT_TRUE(s.Execute({{"op", "create"}, {"path", {"M", "materials", "A"}}, {"type", "Material"}})["ok"].get<bool>());
    const cmd_Json set = s.Execute({{"op", "set"},
                                    {"path", {"M", "materials", "A", c.slot}},
                                    {"type", c.type},
                                    {"values", cmd_Json::parse(c.values)}});
    ASSERT_TRUE(set["ok"].get<bool>()) << set.dump();
    dbf_Save(s.Database(), file);
    EXPECT_NO_THROW(dbf_Open(file));
    kmaT_Edit(file, "UPDATE dbf_Catalog SET version = " + std::to_string(c.version) + " WHERE name = '" + c.className + "';");
    const std::string message = qmx_Catch<nex_CmdError>([&] { dbf_Open(file); }).Message();
    EXPECT_NE(message.find(c.message), std::string::npos) << message;
  }
}

}  // namespace
