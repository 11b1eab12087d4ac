// A rubber with hyperelastic test data and a Mullins effect, a damage initiation with evolutions and
// a crush stress, built, read, refused and validated by scripting names, then saved and reopened.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "platform/model/ddr_Database.h"
#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(KmaMullinsScript, TestDataListsAreBuiltByPathAndValidated) {
  kmaT_Start();
  cmd_Session s;
  Ok(s, R"({"op":"create","path":["M"]})");
  Ok(s, R"({"op":"create","path":["M","materials","Rubber"],"type":"Material"})");
  Ok(s, R"({"op":"set","path":["M","materials","Rubber","hyperelastic"],"type":"Hyperelastic",
            "values":{"type":"OGDEN","n":2,"testData":true,
                      "uniaxialTests":[{"table":[[0.5,0.1],[0.9,0.3]]}],
                      "volumetricTests":[{"volumetricResponse":"POISSON_RATIO","poissonRatio":0.49}]}})");
  Ok(s, R"({"op":"set","path":["M","materials","Rubber","mullinsEffect"],"type":"MullinsEffect",
            "values":{"definition":"TEST_DATA"}})");
  // Nothing to fit to yet.
  cmd_Json invalid = s.ExecuteLine(R"({"op":"validate","path":["M","materials","Rubber"]})");
  EXPECT_FALSE(invalid.value("ok", true));
  EXPECT_EQ(invalid["error"]["message"], "There should be atleast one test data for TEST DATA INPUT definition");

  Ok(s, R"({"op":"create","path":["M","materials","Rubber","mullinsEffect","uniaxialTests",0],
            "type":"UniaxialTestData","values":{"smoothing":2,"table":[[0.4,0.3],[0.2,0.15]]}})");
  Ok(s, R"({"op":"create","path":["M","materials","Rubber","mullinsEffect","biaxialTests",0],
            "type":"BiaxialTestData","values":{"table":[[0.6,0.2]]}})");
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","Rubber","mullinsEffect","uniaxialTests",0,"smoothing"]})"), 2);
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","Rubber","hyperelastic","volumetricTests",0,"volumetricResponse"]})"),
            "POISSON_RATIO");
  Ok(s, R"({"op":"validate","path":["M","materials","Rubber"]})");

  // An element of another class is refused and changes nothing.
  Refusal(s, R"({"op":"create","path":["M","materials","Rubber","mullinsEffect","planarTests",0],
                 "type":"UniaxialTestData","values":{"table":[[0.6,0.2]]}})");
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","Rubber","mullinsEffect","planarTests"]})"), cmd_Json::array());
  Refusal(s, R"({"op":"set","path":["M","materials","Rubber","mullinsEffect","definition"],"value":"test_data"})");

  // A damage initiation on a four-mode criterion with its evolutions, and a crush stress.
  Ok(s, R"({"op":"set","path":["M","materials","Rubber","hashinDamageInitiation"],"type":"DamageInitiation",
            "values":{"table":[[2000,1200,50,100,70,80]],
                      "DamageEvolutionList":[{"type":"ENERGY","failureIndex":1,"table":[[12]]},
                                             {"type":"ENERGY","failureIndex":1,"table":[[10]]}]}})");
  invalid = s.ExecuteLine(R"({"op":"validate","path":["M","materials","Rubber"]})");
  EXPECT_EQ(invalid["error"]["message"], "More than one damage evolutions with same failure index are not allowed.");
  Ok(s, R"({"op":"set","path":["M","materials","Rubber","hashinDamageInitiation","DamageEvolutionList",1,"failureIndex"],
            "value":2})");
  Ok(s, R"({"op":"set","path":["M","materials","Rubber","crushStress"],"type":"CrushStress",
            "values":{"table":[[12]],"crushStressVelocityFactor":{"table":[[1,0],[1.3,5]]}}})");
  Ok(s, R"({"op":"validate","path":["M","materials","Rubber"]})");

  const std::string file = qmx_TempDir("kma-mullins-script") + "/rubber.odb";
  dbf_Save(s.Database(), file);
  ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == s.Database());
}

}  // namespace
