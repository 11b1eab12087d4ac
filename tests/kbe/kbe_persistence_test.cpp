// Persistence of the connector behaviors: metadata and type ids, the database file with
// its stored literal forms, scripting by name, the section repository and copy-on-write.
#include <nlohmann/json.hpp>
#include <sqlite3.h>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "kbe/kbeC_BehaviorOptionContainer.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "platform/base/typ_ArchCompTable.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/kbe/kbe_fixtures.h"

namespace {

class KbePersistence : public ::testing::Test {
 protected:
  void SetUp() override {
    kbe_Start();
    dir_ = qmx_TempDir("kbe-persistence");
  }
  std::string dir_;
};

TEST_F(KbePersistence, MetadataTypeIdsAndTheArchitectureTable) {
  struct Row {
    const char* name;
    const char* script;
    unsigned typeId;
    int version;
  };
  const Row rows[] = {
      {"kbeC_CDCTerm", "CDCTerm", 44564525, 1022},
      {"kbeC_ConnectorPotential", "ConnectorPotential", 44564511, 836},
      {"kbeC_TangentialBehavior", "TangentialBehavior", 44564493, 1022},
      {"kbeC_ConnectorOptions", "ConnectorOptions", (680u << 16) | 2, 1125},
      {"kbeC_ConnectorBehaviorOption", "ConnectorBehaviorOption", (680u << 16) | 1, 811},
      {"kbeC_ConnectorStop", "ConnectorStop", (680u << 16) | 14, 811},
      {"kbeC_ConnectorSection", "ConnectorSection", (680u << 16) | 71, 1125},
  };
  const cls_ClassRegistrar& reg = cls_ClassRegistrar::Instance();
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    const cls_ClassMetadata* md = reg.ByName(r.name);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->TypeId(), r.typeId);
    EXPECT_EQ(md->Version(), r.version);
    EXPECT_STREQ(md->ScriptName(), r.script);
  }
  // The table of key 680 names, in row i, the class whose type id is (680 << 16) | i.
  const typ_ArchCompEntry* arch = typ_ArchCompTable::Find(680);
  ASSERT_NE(arch, nullptr);
  for (const cls_ClassMetadata* md : reg.All()) {
    if ((md->TypeId() >> 16) != 680) continue;
    SCOPED_TRACE(md->Name().str());
    EXPECT_STREQ(arch->Row(static_cast<int>(md->TypeId() & 0xffff)).name, md->Name().c_str());
  }
}

// The generic round trips store sections with empty option lists; here one of each kind, and
// the stored forms of the choices whose stored literal differs from the scripting one.
TEST_F(KbePersistence, EveryBehaviorInASectionThroughTheFile) {
  const kbeC_ConnectorSection section = kbe_FilledSection();
  for (const auto& h : section.GetBehaviorOptions()) {  // each kind copies as itself
    std::unique_ptr<kbeC_ConnectorBehaviorOption> copy(h->Copy());
    EXPECT_TRUE(*copy == h.Get()) << cls_ClassOf(h.Get()).Name().str();
  }
  ddr_Database db;
  db.CreateModel("Model-1");
  kbe_Sections(db).Insert("Bushing", section);
  kbe_Sections(db).Insert("Empty", kbeC_ConnectorSection());
  const std::string file = dir_ + "/round.odb";
  dbf_Save(db, file);
  EXPECT_TRUE(dbf_Open(file) == db);

  EXPECT_EQ(kbe_Query(file, "SELECT iniPotOperator FROM kbeC_ConnectorDamage"), "INITIATION_MAXIMUM");
  EXPECT_EQ(kbe_Query(file, "SELECT evoPotOperator FROM kbeC_ConnectorDamage"), "EVOLUTION_SUM");
  EXPECT_EQ(kbe_Query(file, "SELECT componentType FROM kbeC_ConnectorFriction"), "NO_INDEP_COMPS");
  EXPECT_EQ(kbe_Query(file, "SELECT contForceStyle FROM kbeC_ConnectorFriction"), "DERIV_COMP");
  EXPECT_EQ(kbe_Query(file, "SELECT tangentDirs FROM kbeC_ConnectorFriction"), "2");
  EXPECT_EQ(kbe_Query(file, "SELECT lockingComponent FROM kbeC_ConnectorLock"), "2147483647");
}

TEST_F(KbePersistence, StoredLiteralsAreCheckedWhenRead) {
  kbeC_ConnectorFriction f;
  cls_Record rec = cls_ToRecord(f);
  EXPECT_EQ(*std::get_if<cow_String>(rec.Find("componentType")), "NO_INDEP_COMPS");
  // Scripts' literal is not the stored one.
  rec.Set("componentType", cow_String("NO_INDEPENDENT_COMPONENTS"));
  auto e = qmx_Catch<nex_CmdError>([&] { kbeC_ConnectorFriction g{cls_RecordReader(rec)}; });
  EXPECT_EQ(e.Message(),
            "omu_PrimEnum(const cow_String&) - str not allowed: NO_INDEPENDENT_COMPONENTS  Permissible: POSITION, MOTION, "
            "NO_INDEP_COMPS");
  rec.Set("componentType", cow_String("MOTION"));
  EXPECT_EQ(kbeC_ConnectorFriction(cls_RecordReader(rec)).GetComponentType(), kbeC_ConnectorFriction::ComponentTypeEnm::MOTION);
}

TEST_F(KbePersistence, ScriptsBuildSectionsByName) {
  cmd_Session s;
  auto run = [&](const std::string& line) { return s.ExecuteLine(line); };
  ASSERT_TRUE(run(R"({"op":"create","path":["Model-1"]})")["ok"].get<bool>());
  ASSERT_TRUE(run(R"({"op":"create","path":["Model-1","connectorSections","B"],"type":"ConnectorSection"})")["ok"].get<bool>());
  auto r = run(R"({"op":"set","path":["Model-1","connectorSections","B"],"values":{"behaviorOptions":[)"
               R"({"type":"ConnectorLock","components":[1],"lockingComponent":2147483647,"maxForce":10},)"
               R"({"type":"ConnectorFriction","componentType":"NO_INDEPENDENT_COMPONENTS","tangentDirection":3}]}})");
  ASSERT_TRUE(r["ok"].get<bool>()) << r.dump();
  EXPECT_EQ(run(R"({"op":"get","path":["Model-1","connectorSections","B","behaviorOptions",0,"lockingComponent"]})")["result"], "ALL");
  EXPECT_EQ(run(R"({"op":"get","path":["Model-1","connectorSections","B","behaviorOptions",1,"componentType"]})")["result"],
            "NO_INDEPENDENT_COMPONENTS");
  // Refusals: the stored literal, an unknown choice for "ALL"; nothing changes.
  auto bad = run(R"({"op":"set","path":["Model-1","connectorSections","B","behaviorOptions",1],"values":{"componentType":"NO_INDEP_COMPS"}})");
  EXPECT_FALSE(bad["ok"].get<bool>());
  EXPECT_EQ(bad["error"]["message"],
            "omu_PrimEnum(const cow_String&) - str not allowed: NO_INDEP_COMPS  Permissible: POSITION, MOTION, "
            "NO_INDEPENDENT_COMPONENTS");
  // Through the API, "ALL" is the only literal a component member takes.
  const cls_ScriptField* locking = cls_ClassRegistrar::Instance().ByScriptName("ConnectorLock")->FindScriptField("lockingComponent");
  kbeC_ConnectorLock probe;
  probe.SetLockingComponent(3);
  kbeC_ConnectorBehaviorOption* root = &probe;
  auto e = qmx_Catch<nex_CmdError>([&] { locking->set(root, cow_String("NONE")); });
  EXPECT_EQ(e.Message(), "omu_PrimEnum(const cow_String&) - str not allowed: NONE  Permissible: ALL");
  EXPECT_EQ(probe.GetLockingComponent(), 3);
  locking->set(root, cow_String("ALL"));
  EXPECT_EQ(probe.GetLockingComponent(), 2147483647);
  ASSERT_TRUE(run(R"({"op":"set","path":["Model-1","connectorSections","B","behaviorOptions",0],"values":{"lockingComponent":4}})")["ok"].get<bool>());
  const auto& lock = dynamic_cast<const kbeC_ConnectorLock&>(kbe_Sections(s.Database()).Get("B").GetBehaviorOptions()[0].Get());
  EXPECT_EQ(lock.GetLockingComponent(), 4);
  auto valid = run(R"({"op":"validate","path":["Model-1","connectorSections","B"]})");
  EXPECT_TRUE(valid["ok"].get<bool>()) << valid.dump();
}

TEST_F(KbePersistence, CopiesSeparateOnModification) {
  kbeC_ConnectorSection a = kbe_FilledSection();
  kbeC_ConnectorSection b = a;
  auto& lock = dynamic_cast<kbeC_ConnectorLock&>(b.ModifyBehaviorOption(6));
  lock.SetMaxForce(-1);
  EXPECT_FALSE(a == b);
  EXPECT_EQ(dynamic_cast<const kbeC_ConnectorLock&>(a.GetBehaviorOptions()[6].Get()).GetMaxForce(), 200);
  EXPECT_THROW(b.ModifyBehaviorOption(8), nex_CmdError);
}

TEST_F(KbePersistence, TheIntegerKeyedContainer) {
  kbeC_BehaviorOptionContainer c;
  kbeC_ConnectorStop stop;
  stop.SetComponents(cow_List<std::int32_t>{1});
  c.Insert(3, stop);
  c.Insert(-1, kbeC_ConnectorFailure());
  EXPECT_EQ(c.Keys(), (std::vector<cow_String>{"-1", "3"}));
  const cls_Record rec = cls_ToRecord(c);
  kbeC_BehaviorOptionContainer back{cls_RecordReader(rec)};
  EXPECT_TRUE(back == c);
  EXPECT_EQ(dynamic_cast<const kbeC_ConnectorStop&>(*back.ConstGet(3)).GetComponents().size(), 1u);
  EXPECT_THROW(c.Get(7), nex_CmdError);
}

}  // namespace
