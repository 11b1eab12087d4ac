#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "platform/base/nex_Exception.h"
#include "platform/base/omi_Singleton.h"
#include "tests/support/qmx_test.h"

namespace {

class Persistence : public ::testing::Test {
 protected:
  void SetUp() override { qmx_StartLibrary(); }
};

std::vector<std::string> FieldNames(const cls_Record& r) {
  std::vector<std::string> names;
  for (const auto& f : r.fields) names.push_back(f.first.str());
  return names;
}

TEST_F(Persistence, EveryRegisteredClassRoundTripsThroughARecord) {
  int checked = 0;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) {
    if (!md->CanConstruct()) continue;
    SCOPED_TRACE(md->Name().str());
    void* obj = md->NewDefault();
    cls_RecordWriter w;
    md->Write(obj, w);
    cls_Record rec = w.Take();
    EXPECT_EQ(rec.typeId, md->TypeId());
    EXPECT_EQ(rec.uid, md->UidOf(obj));
    void* back = md->NewFromRecord(cls_RecordReader(rec));
    EXPECT_TRUE(md->Equal(obj, back));
    EXPECT_EQ(md->UidOf(back), md->UidOf(obj));
    // the record written again is the same record
    cls_RecordWriter w2;
    md->Write(back, w2);
    EXPECT_EQ(w2.Record(), rec);
    md->Destroy(obj);
    md->Destroy(back);
    ++checked;
  }
  EXPECT_GE(checked, 5);
}

// Scripts construct by these names, so two classes of one name would make one unreachable.
TEST_F(Persistence, NoTwoClassesShareAScriptingConstructorName) {
  std::map<std::string, std::string> byScriptName;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) {
    const std::string script = md->ScriptName();
    if (script.empty()) continue;
    const auto [it, fresh] = byScriptName.emplace(script, std::string(md->Name()));
    EXPECT_TRUE(fresh) << "\"" << script << "\" names " << it->second << " and " << md->Name();
  }
  EXPECT_GT(byScriptName.size(), 20u);
}

TEST_F(Persistence, UidsAreFreshForNewObjectsAndKeptByReadAndCopy) {
  kadC_AdptMeshCtrl a, b;
  EXPECT_NE(a.GetUid(), b.GetUid());
  EXPECT_FALSE(a.GetUid().IsNull());
  EXPECT_NE(a, b);  // equal fields, different identities
  kadC_AdptMeshCtrl copy(a);
  EXPECT_EQ(copy, a);
  cls_Record rec = cls_ToRecord(a);
  rec.uid = cls_Uid(0x1234, 0x5678);
  kadC_AdptMeshCtrl read{cls_RecordReader(rec)};
  EXPECT_EQ(read.GetUid(), cls_Uid(0x1234, 0x5678));
  EXPECT_EQ(cls_Uid::FromString(read.GetUid().ToString()), read.GetUid());
  EXPECT_THROW(cls_Uid::FromString("xyz"), nex_CmdError);
}

TEST_F(Persistence, WriteOrderFollowsTheTableNotTheFieldNumbers) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kadC_AdptMeshCtrl");
  ASSERT_NE(md, nullptr);
  std::vector<int> numbers;
  for (const auto& a : md->Attributes()) numbers.push_back(a.handle.Number());
  EXPECT_EQ(numbers, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 9, 10, 11, 13}));
  cls_Record rec = cls_ToRecord(kadC_AdptMeshCtrl());
  auto names = FieldNames(rec);
  ASSERT_EQ(names.size(), md->Attributes().size());
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(names[i], md->Attributes()[i].handle.Name().str());
}

TEST_F(Persistence, UnknownStoredLiteralIsRefusedWithTheEnumerationMessage) {
  cls_Record rec = cls_ToRecord(kadC_AdptMeshCtrl());
  rec.Set("smoothingPriority", cow_String("Graded"));
  auto e = qmx_Catch<nex_CmdError>([&] { kadC_AdptMeshCtrl c{cls_RecordReader(rec)}; });
  EXPECT_EQ(e.Message(), "omu_PrimEnum(const cow_String&) - str not allowed: Graded  Permissible: UNIFORM, GRADED");
  EXPECT_EQ(e.Line(), 103);
}

TEST_F(Persistence, MissingAndMistypedFieldsAreRefused) {
  cls_Record rec = cls_ToRecord(kadC_AdptMeshDomain());
  cls_Record missing = rec;
  missing.Remove("frequency");
  auto e1 = qmx_Catch<nex_CmdError>([&] { kadC_AdptMeshDomain d{cls_RecordReader(missing)}; });
  EXPECT_NE(e1.Message().find("no field \"frequency\""), std::string::npos) << e1.Message();
  cls_Record mistyped = rec;
  mistyped.Set("frequency", 2.5);
  auto e2 = qmx_Catch<nex_CmdError>([&] { kadC_AdptMeshDomain d{cls_RecordReader(mistyped)}; });
  EXPECT_NE(e2.Message().find("holds a double, not an int"), std::string::npos) << e2.Message();
  cls_Record wrongClass = rec;
  wrongClass.typeId = kadC_AdptMeshCtrl::TypeId();
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kadC_AdptMeshDomain");
  EXPECT_THROW(md->NewFromRecord(cls_RecordReader(wrongClass)), nex_CmdError);
}

TEST_F(Persistence, MetadataOfTheDomain) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kadC_AdptMeshDomain");
  ASSERT_NE(md, nullptr);
  EXPECT_EQ(md->Version(), 302);
  EXPECT_EQ(md->Flag(), 1);
  EXPECT_EQ(md->TypeId(), 0x02680002u);
  EXPECT_EQ(md->Factory(), nullptr);
  EXPECT_NE(md->Dtor(), nullptr);
  struct Row {
    int number;
    const char* name;
    int type;
  };
  const Row rows[] = {{0, "region", cls_AttrRegion},
                      {1, "controls", 11},
                      {2, "frequency", 5},
                      {3, "initialRemeshingSweeps", 5},
                      {4, "sweepsPerIncrement", 5}};
  ASSERT_EQ(md->Attributes().size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const auto& a = md->Attributes()[i];
    EXPECT_EQ(a.handle.Number(), rows[i].number);
    EXPECT_EQ(a.handle.Name(), rows[i].name);
    EXPECT_EQ(a.type, rows[i].type);
    EXPECT_EQ(a.count, 1);
    EXPECT_EQ(a.collection, 0);
  }
}

// --- the upgrade driver on a class of its own -----------------------------------------------

std::vector<std::string> stepLog;

void* StepA(const dbc_Row& oldRow, dbc_Row& newRow, int arg) {
  stepLog.push_back("A" + std::to_string(arg));
  newRow.SetDouble(rfm_FieldHandle("x"), oldRow.GetDouble(rfm_FieldHandle("x")) * 2);
  newRow.SetString(rfm_FieldHandle("added"), "by A");
  return nullptr;
}
void* StepB(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  stepLog.push_back("B");
  // B sees the row as A left it
  newRow.SetString(rfm_FieldHandle("added"), oldRow.GetString(rfm_FieldHandle("added")).str() + ", then B");
  newRow.Remove(rfm_FieldHandle("obsolete"));
  return nullptr;
}

dbc_DatabaseConverter& Chain() {
  static dbc_DatabaseConverter conv;
  static bool made = [] {
    // declared out of order on purpose: the driver orders the steps by version
    conv.GetConverter(860).Upgrade("Fake", 1, 829).BindConversionFunction(&StepB);
    conv.GetConverter(829).Upgrade("Fake", 1, 302).BindConversionFunction(&StepA, 5);
    conv.GetConverter(200).Upgrade("Fake", 1, 100);  // no function: only raises the version
    conv.GetConverter(302).Upgrade("Fake", 1, 200);
    return true;
  }();
  (void)made;
  return conv;
}

TEST(UpgradeDriver, TwoStepChainRunsStepByStepInOrder) {
  dbc_UpgradeDriver driver(Chain());
  cls_Record row;
  row.typeId = 1;
  row.Set("x", 1.5);
  row.Set("obsolete", 3);
  stepLog.clear();
  driver.Upgrade("Fake", 302, 860, row);
  EXPECT_EQ(stepLog, (std::vector<std::string>{"A5", "B"}));
  EXPECT_EQ(std::get<double>(*row.Find("x")), 3.0);
  EXPECT_EQ(std::get<cow_String>(*row.Find("added")), "by A, then B");
  EXPECT_EQ(row.Find("obsolete"), nullptr);
  // from 100 the two function-less steps only raise the version before A and B run
  stepLog.clear();
  cls_Record older = row;
  older.Set("x", 1.0);
  older.Set("obsolete", 1);
  driver.Upgrade("Fake", 100, 860, older);
  EXPECT_EQ(stepLog, (std::vector<std::string>{"A5", "B"}));
  // already current: nothing runs
  stepLog.clear();
  driver.Upgrade("Fake", 860, 860, row);
  EXPECT_TRUE(stepLog.empty());
}

TEST(UpgradeDriver, RefusesWhatItCannotReach) {
  dbc_UpgradeDriver driver(Chain());
  cls_Record row;
  row.Set("x", 1.0);
  const cls_Record before = row;
  struct Case {
    const char* cls;
    int stored;
    int current;
    const char* message;
  };
  const Case cases[] = {
      {"Fake", 301, 860,
       "Class Fake is stored at version 301, from which no chain of upgrade steps reaches its current version 860"},
      {"Fake", 302, 900,
       "Class Fake is stored at version 302, from which no chain of upgrade steps reaches its current version 900"},
      {"Other", 302, 860,
       "Class Other is stored at version 302, from which no chain of upgrade steps reaches its current version 860"},
      {"Fake", 861, 860, "Class Fake is stored at version 861, newer than this library's version 860"},
  };
  for (const auto& c : cases) {
    stepLog.clear();
    auto e = qmx_Catch<nex_CmdError>([&] { driver.Upgrade(c.cls, c.stored, c.current, row); });
    EXPECT_EQ(e.Message(), c.message);
    EXPECT_TRUE(stepLog.empty()) << "no step may run before the chain is known to reach";
    EXPECT_EQ(row, before);
  }
}

TEST(UpgradeDriver, ConflictingStepsFromOneVersionAreRefused) {
  dbc_DatabaseConverter conv;
  conv.GetConverter(829).Upgrade("Fake", 1, 302).BindConversionFunction(&StepA);
  conv.GetConverter(860).Upgrade("Fake", 1, 302).BindConversionFunction(&StepB);
  EXPECT_THROW(dbc_UpgradeDriver{conv}, nex_CmdError);
}

// An old class version that registers while the program runs, as a module started late does.
struct LateVersion final : dbc_OldClassVersion {
  void SchemaChanges(dbc_DatabaseConverter& c) override {
    c.GetConverter(829).Upgrade("LateFake", 1, 302).BindConversionFunction(&StepA);
  }
};

TEST(UpgradeDriver, TheRegisteredDriverIsMadeAgainOnlyOnceMoreVersionsRegister) {
  qmx_StartLibrary();
  const auto first = dbc_UpgradeDriver::Registered();
  EXPECT_EQ(dbc_UpgradeDriver::Registered(), first);
  EXPECT_FALSE(first->HasPath("LateFake", 302, 829));
  omi_Singleton<dbc_OldClassRegistrar>::Instance().Register(cow_CountedHld<dbc_OldClassVersion>(new LateVersion), 0);
  const auto second = dbc_UpgradeDriver::Registered();
  ASSERT_NE(second, first);
  EXPECT_TRUE(second->HasPath("LateFake", 302, 829));
  EXPECT_EQ(dbc_UpgradeDriver::Registered(), second);
  EXPECT_FALSE(first->HasPath("LateFake", 302, 829)) << "a driver handed out stays as it was made";
}

TEST(UpgradeDriver, OldRowCannotBeChanged) {
  cls_Record rec;
  const cls_Record& c = rec;
  dbc_Row old(c);
  EXPECT_THROW(old.SetInt(rfm_FieldHandle("a"), 1), nex_CmdError);
  EXPECT_THROW(old.GetInt(rfm_FieldHandle("a")), nex_CmdError);
}

}  // namespace
