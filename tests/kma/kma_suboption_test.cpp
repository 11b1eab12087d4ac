// The creep sub-options of cap and Drucker-Prager plasticity, the shear of an equation of state
// and the shear retention of brittle cracking: reached by script under their owners, validated
// as part of them, refused under the wrong owner, and read from files of older layouts.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "kma/kmaC_BrittleCracking.h"
#include "kma/kmaC_CapCreep_Versions.h"
#include "kma/kmaC_CapCreepCohesion_Versions.h"
#include "kma/kmaC_CapCreepConsolidation_Versions.h"
#include "kma/kmaC_CapPlasticity.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_DruckerPragerCreep_Versions.h"
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_EosShear_Versions.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MaterialInMaterialContainerShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialOptionShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialShortcut.h"
#include "kma/kmaC_ShearRetention_Versions.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_Record.h"
#include "tests/kma/kmaT_Support.h"

namespace {

const char* const kDependencies = "Number of dependencies specified is less than the minimum.";
const char* const kZeroRow = "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).";

cmd_Json Ok(cmd_Session& s, const cmd_Json& command) {
  cmd_Json r = s.Execute(command);
  EXPECT_TRUE(r.value("ok", false)) << command.dump() << " -> " << r.dump();
  return r.contains("result") ? r["result"] : cmd_Json();
}

TEST(KmaSubOptions, AreSetByScriptUnderTheirOwnersAndRoundTripThroughTheFile) {
  kmaT_Start();
  struct Case {
    const char* slot;
    const char* owner;
    const char* sub;
    const char* type;
    const char* values;
    const char* member;
    const char* expected;
    const char* className;
  };
  const Case cases[] = {
      {"capPlasticity", "CapPlasticity", "capCreepCohesion", "CapCreepCohesion", R"({"law":"SINGHM","time":"CREEP","table":[[1e-6,2,0.5]]})", "time", R"("CREEP")", "kmaC_CapCreepCohesion"},
      {"capPlasticity", "CapPlasticity", "capCreepConsolidation", "CapCreepConsolidation", R"({"law":"TIME","table":[[1e-7,1,-0.2]]})", "law", R"("TIME")", "kmaC_CapCreepConsolidation"},
      {"capPlasticity", "CapPlasticity", "capCreep", "CapCreep", R"({"law":"USER"})", "law", R"("USER")", "kmaC_CapCreep"},
      {"druckerPrager", "DruckerPrager", "druckerPragerCreep", "DruckerPragerCreep", R"({"law":"STRAIN","dependencies":1,"table":[[1e-8,2,-0.3,20]]})", "dependencies", "1", "kmaC_DruckerPragerCreep"},
      {"eos", "Eos", "eosShear", "EosShear", R"({"type":"ELASTIC","table":[[8e4]]})", "type", R"("ELASTIC")", "kmaC_EosShear"},
      {"brittleCracking", "BrittleCracking", "shearRetention", "ShearRetention", R"({"type":"POWER_LAW","table":[[0.001,2]]})", "type", R"("POWER_LAW")", "kmaC_ShearRetention"},
  };
  cmd_Session s;
  Ok(s, {{"op", "create"}, {"path", {"M"}}});
  Ok(s, {{"op", "create"}, {"path", {"M", "materials", "Soil"}}, {"type", "Material"}});
  for (const Case& c : cases) {
    SCOPED_TRACE(c.type);
    const cmd_Json owner = {"M", "materials", "Soil", c.slot};
    if (s.Execute({{"op", "get"}, {"path", owner}}).value("result", cmd_Json()).is_null())
      Ok(s, {{"op", "set"}, {"path", owner}, {"type", c.owner}, {"values", cmd_Json::object()}});
    cmd_Json sub = owner;
    sub.push_back(c.sub);
    Ok(s, {{"op", "set"}, {"path", sub}, {"type", c.type}, {"values", cmd_Json::parse(c.values)}});
    cmd_Json member = sub;
    member.push_back(c.member);
    EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", member}}), cmd_Json::parse(c.expected));
  }
  Ok(s, {{"op", "validate"}, {"path", {"M", "materials", "Soil"}}});
  // A sub-option of another class is refused in the slot and leaves it as it was.
  const cmd_Json wrong = s.Execute({{"op", "set"}, {"path", {"M", "materials", "Soil", "eos", "eosShear"}},
                                    {"type", "ShearRetention"}, {"values", cmd_Json::object()}});
  EXPECT_FALSE(wrong.value("ok", true));
  EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", {"M", "materials", "Soil", "eos", "eosShear", "type"}}}), "ELASTIC");

  const std::string file = qmx_TempDir("kma-suboptions") + "/soil.odb";
  dbf_Save(s.Database(), file);
  const ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == s.Database());
  for (const Case& c : cases) {
    SCOPED_TRACE(c.className);
    EXPECT_EQ(kmaT_Query(file, std::string("SELECT count(*) FROM ") + c.className), std::vector<std::string>{"1"});
  }
}

TEST(KmaSubOptions, UnknownNamesAreRefusedWithTheOwnersMessage) {
  kmaT_Start();
  ddr_Model model;
  kmaC_Material m;
  m.SetOption("capPlasticity", kmaC_CapPlasticity());
  m.SetOption("druckerPrager", kmaC_DruckerPrager());
  m.SetOption("eos", kmaC_Eos());
  m.SetOption("brittleCracking", kmaC_BrittleCracking());
  dynamic_cast<kmaC_MaterialContainer&>(*model.ModifyRepository("materials")).Insert("A", m);
  const struct {
    const char* slot;
    const char* sub;
    const char* message;
  } cases[] = {
      {"capPlasticity", "druckerPragerCreep", "Unknown material option name for cap plasticity"},
      {"capPlasticity", "table", "Unknown material option name for cap plasticity"},
      {"druckerPrager", "capCreep", "Unknown material option name for drucker prager"},
      {"eos", "shear", "Unknown material option name in eos"},
      {"brittleCracking", "eosShear", "Unknown material option name for brittle cracking"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.sub);
    const kmaC_MaterialOptionShortcut owner =
        kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("A"), c.slot);
    const kmaC_MaterialOptionShortcut sc = kmaC_MaterialOptionInMaterialOptionShortcut(owner, c.sub);
    EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { sc.ConstGet(model); }).Message(), c.message);
  }
  // A known sub-option name that is empty names nothing; the sub-options themselves have none.
  const kmaC_MaterialOptionShortcut eos =
      kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("A"), "eos");
  EXPECT_EQ(kmaC_MaterialOptionInMaterialOptionShortcut(eos, "eosShear").ConstGet(model), nullptr);
  EXPECT_STREQ(kmaC_EosShear().UnknownSubOptionMessage(), "Material option has no suboptions");
}

TEST(KmaSubOptions, AreValidatedAsPartOfTheirOwnerAfterTheOwnersScalarRules) {
  kmaT_Start();
  const kmaC_MaterialTable zeroRow(cow_2DArray<double>{{1, 2}, {0, 0}});
  struct Case {
    const char* what;
    std::function<void()> validate;
    const char* message;
  };
  const Case cases[] = {
      {"cohesion creep dependencies",
       [] { kmaC_CapCreepCohesion c; c.SetDependencies(-1); kmaC_CapPlasticity p; p.SetCapCreepCohesion(c); p.AssertValid(); },
       kDependencies},
      {"consolidation creep zero row",
       [&] { kmaC_CapCreepConsolidation c; c.SetTable(zeroRow); kmaC_CapPlasticity p; p.SetCapCreepConsolidation(c); p.AssertValid(); },
       kZeroRow},
      {"a user creep law reads no table",
       [&] {
         kmaC_CapCreepConsolidation c;
         c.SetLaw(kmaC_CapCreepConsolidation::LawEnm::USER);
         c.SetTable(zeroRow);
         kmaC_CapPlasticity p;
         p.SetCapCreepConsolidation(c);
         p.AssertValid();
       },
       nullptr},
      {"sub-option before the owner's table",
       [&] { kmaC_CapCreep c; c.SetDependencies(-2); kmaC_CapPlasticity p; p.SetCapCreep(c); p.SetTable(zeroRow); p.AssertValid(); },
       kDependencies},
      {"owner's dependencies before the sub-option",
       [&] { kmaC_CapCreep c; c.SetTable(zeroRow); kmaC_CapPlasticity p; p.SetCapCreep(c); p.SetDependencies(-1); p.AssertValid(); },
       kDependencies},
      {"eccentricity before the Drucker-Prager creep",
       [] {
         kmaC_DruckerPragerCreep c;
         c.SetDependencies(-1);
         kmaC_DruckerPrager p;
         p.SetDruckerPragerCreep(c);
         p.SetEccentricity(-0.1);
         p.AssertValid();
       },
       "Eccentricity given is less than the minimum."},
      {"detonation energy before the eos shear",
       [&] { kmaC_EosShear c; c.SetTable(zeroRow); kmaC_Eos e; e.SetEosShear(c); e.SetDetonationEnergy(-1.0); e.AssertValid(); },
       "Detonation energy should be non-negative."},
      {"eos shear zero row",
       [&] { kmaC_EosShear c; c.SetTable(zeroRow); kmaC_Eos e; e.SetEosShear(c); e.AssertValid(); }, kZeroRow},
      {"shear retention dependencies",
       [] { kmaC_ShearRetention c; c.SetDependencies(-1); kmaC_BrittleCracking b; b.SetShearRetention(c); b.AssertValid(); },
       kDependencies},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    if (c.message) kmaT_ExpectFailure(c.validate, c.message);
    else EXPECT_NO_THROW(c.validate());
  }
}

// --- older layouts ------------------------------------------------------------------------------

kmaC_MaterialContainer& Materials(ddr_Database& db) {
  return dynamic_cast<kmaC_MaterialContainer&>(*db.ModifyModel("Model-1")->ModifyRepository("materials"));
}

TEST(KmaSubOptionUpgrade, OlderLayoutsReadBackWithTheFilledValues) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-suboption-upgrade");
  struct Case {
    const char* className;
    int version;
    std::vector<std::string> absent;
    std::function<void(kmaC_Material&)> stored;
    std::function<void(const kmaC_Material&)> check;
  };
  const kmaC_MaterialTable data(cow_2DArray<double>{{1e-6, 2, 0.5}});
  auto cap = [&](auto sub, auto setter) {
    sub.SetDependencies(1);
    sub.SetTable(data);
    kmaC_CapPlasticity p;
    (p.*setter)(sub);
    return p;
  };
  const Case cases[] = {
      {"kmaC_CapCreepCohesion", 452, {"time"},
       [&](kmaC_Material& m) {
         kmaC_CapCreepCohesion c;
         c.SetTime(kmaC_CapCreepCohesion::TimeEnm::CREEP);
         c.SetLaw(kmaC_CapCreepCohesion::LawEnm::SINGHM);
         m.SetOption("capPlasticity", cap(c, &kmaC_CapPlasticity::SetCapCreepCohesion));
       },
       [&](const kmaC_Material& m) {
         const auto& p = dynamic_cast<const kmaC_CapPlasticity&>(*m.GetOption("capPlasticity"));
         const auto* c = dynamic_cast<const kmaC_CapCreepCohesion*>(p.GetCapCreepCohesion());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetTime(), kmaC_CapCreepCohesion::TimeEnm::TOTAL);
         EXPECT_EQ(c->GetLaw(), kmaC_CapCreepCohesion::LawEnm::SINGHM);
         EXPECT_EQ(c->GetDependencies(), 1);
         EXPECT_TRUE(c->GetTable() == data);
       }},
      {"kmaC_CapCreepConsolidation", 452, {"time"},
       [&](kmaC_Material& m) {
         kmaC_CapCreepConsolidation c;
         c.SetTime(kmaC_CapCreepConsolidation::TimeEnm::CREEP);
         m.SetOption("capPlasticity", cap(c, &kmaC_CapPlasticity::SetCapCreepConsolidation));
       },
       [&](const kmaC_Material& m) {
         const auto& p = dynamic_cast<const kmaC_CapPlasticity&>(*m.GetOption("capPlasticity"));
         const auto* c = dynamic_cast<const kmaC_CapCreepConsolidation*>(p.GetCapCreepConsolidation());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetTime(), kmaC_CapCreepConsolidation::TimeEnm::TOTAL);
         EXPECT_EQ(c->GetDependencies(), 1);
         EXPECT_TRUE(c->GetTable() == data);
       }},
      {"kmaC_CapCreep", 203, {},
       [&](kmaC_Material& m) {
         kmaC_CapCreep c;
         c.SetLaw(kmaC_CapCreep::LawEnm::TIME);
         m.SetOption("capPlasticity", cap(c, &kmaC_CapPlasticity::SetCapCreep));
       },
       [&](const kmaC_Material& m) {
         const auto& p = dynamic_cast<const kmaC_CapPlasticity&>(*m.GetOption("capPlasticity"));
         const auto* c = dynamic_cast<const kmaC_CapCreep*>(p.GetCapCreep());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetLaw(), kmaC_CapCreep::LawEnm::TIME);
         EXPECT_EQ(c->GetDependencies(), 1);
       }},
      {"kmaC_DruckerPragerCreep", 203, {"time"},
       [&](kmaC_Material& m) {
         kmaC_DruckerPragerCreep c;
         c.SetTime(kmaC_DruckerPragerCreep::TimeEnm::CREEP);
         c.SetLaw(kmaC_DruckerPragerCreep::LawEnm::TIME);
         kmaC_DruckerPrager p;
         p.SetDruckerPragerCreep(c);
         m.SetOption("druckerPrager", p);
       },
       [&](const kmaC_Material& m) {
         const auto& p = dynamic_cast<const kmaC_DruckerPrager&>(*m.GetOption("druckerPrager"));
         const auto* c = dynamic_cast<const kmaC_DruckerPragerCreep*>(p.GetDruckerPragerCreep());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetTime(), kmaC_DruckerPragerCreep::TimeEnm::TOTAL);
         EXPECT_EQ(c->GetLaw(), kmaC_DruckerPragerCreep::LawEnm::TIME);
       }},
      {"kmaC_EosShear", 203, {"type"},
       [&](kmaC_Material& m) {
         kmaC_EosShear c;
         c.SetType(kmaC_EosShear::TypeEnm::ELASTIC);
         c.SetDependencies(2);
         kmaC_Eos e;
         e.SetEosShear(c);
         m.SetOption("eos", e);
       },
       [&](const kmaC_Material& m) {
         const auto& e = dynamic_cast<const kmaC_Eos&>(*m.GetOption("eos"));
         const auto* c = dynamic_cast<const kmaC_EosShear*>(e.GetEosShear());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetType(), kmaC_EosShear::TypeEnm::VISCOUS);
         EXPECT_EQ(c->GetDependencies(), 2);
       }},
      {"kmaC_EosShear", 1338, {},
       [&](kmaC_Material& m) {
         kmaC_EosShear c;
         c.SetType(kmaC_EosShear::TypeEnm::ELASTIC);
         kmaC_Eos e;
         e.SetEosShear(c);
         m.SetOption("eos", e);
       },
       [&](const kmaC_Material& m) {
         const auto& e = dynamic_cast<const kmaC_Eos&>(*m.GetOption("eos"));
         const auto* c = dynamic_cast<const kmaC_EosShear*>(e.GetEosShear());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetType(), kmaC_EosShear::TypeEnm::ELASTIC);  // present at 1338, kept
       }},
      {"kmaC_ShearRetention", 203, {"type"},
       [&](kmaC_Material& m) {
         kmaC_ShearRetention c;
         c.SetType(kmaC_ShearRetention::TypeEnm::POWER_LAW);
         kmaC_BrittleCracking b;
         b.SetShearRetention(c);
         m.SetOption("brittleCracking", b);
       },
       [&](const kmaC_Material& m) {
         const auto& b = dynamic_cast<const kmaC_BrittleCracking&>(*m.GetOption("brittleCracking"));
         const auto* c = dynamic_cast<const kmaC_ShearRetention*>(b.GetShearRetention());
         ASSERT_NE(c, nullptr);
         EXPECT_EQ(c->GetType(), kmaC_ShearRetention::TypeEnm::RETENTION_FACTOR);
       }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.className) + " " + std::to_string(c.version));
    ddr_Database db;
    db.CreateModel("Model-1");
    kmaC_Material m;
    c.stored(m);
    Materials(db).Insert("M", m);
    const std::string file = dir + "/" + c.className + "-" + std::to_string(c.version) + ".odb";
    dbf_Save(db, file);
    kmaT_MakeOldLayout(file, c.className, c.version, c.absent);
    ddr_Database upgraded = dbf_Open(file);
    const kmaC_Material* back =
        Materials(upgraded).ConstGet("M");
    ASSERT_NE(back, nullptr);
    c.check(*back);
  }
}

TEST(KmaSubOptionUpgrade, TheExportedCapCreepConvertersFillTheTimeMeasureAndKeepTheRest) {
  for (auto fn : {&Upgrade_kmaC_CapCreepCohesion_452_2008, &Upgrade_kmaC_CapCreepConsolidation_452_2008}) {
    cls_Record old;
    old.fields.emplace_back("law", cow_String("TIME"));
    old.fields.emplace_back("dependencies", std::int32_t{3});
    cls_Record next = old;
    dbc_Row oldRow(static_cast<const cls_Record&>(old));
    dbc_Row newRow(next);
    EXPECT_EQ(fn(oldRow, newRow, 0), nullptr);
    const cls_Value* time = next.Find("time");
    ASSERT_NE(time, nullptr);
    EXPECT_EQ(std::get<cow_String>(*time), "TOTAL");
    EXPECT_EQ(std::get<cow_String>(*next.Find("law")), "TIME");
    EXPECT_EQ(std::get<std::int32_t>(*next.Find("dependencies")), 3);
  }
}

}  // namespace
