// Round trips through the database file: every registered class, default and filled, through the
// generic object path and inside model containers (read through their family roots); the layout
// a person sees with the sqlite3 shell; opening changes nothing; upgrade copies a file forward.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <filesystem>
#include <set>

#include "kad/kadC_ACWrapper.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Roots.h"
#include "platform/model/mdl_Repository.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Fill.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

class DbRoundTrip : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-roundtrip");
  }
  std::string Path(const std::string& name) const { return dir_ + "/" + name; }
  std::string dir_;
};

// Objects owned through their metadata.
struct Owned {
  Owned(const cls_ClassMetadata* c, void* o) : cls(c), obj(o) {}
  Owned(const Owned&) = delete;
  ~Owned() { cls->Destroy(obj); }
  const cls_ClassMetadata* cls;
  void* obj;
};

TEST_F(DbRoundTrip, EveryRegisteredClassThroughTheGenericObjectPath) {
  std::vector<std::unique_ptr<Owned>> objects;
  std::vector<dbf_Root> roots;
  int filledFields = 0;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) {
    // Classes that the atomic-save tests of this program register to break the rules on purpose.
    if (!md->CanConstruct() || md->Name().view().starts_with("dbtT_Rogue")) continue;
    int fields = 0;
    objects.push_back(std::make_unique<Owned>(md, md->NewDefault()));
    roots.push_back(dbf_Root{md->Name().str() + "/default", md, objects.back()->obj});
    objects.push_back(std::make_unique<Owned>(md, dbtT_NewFilled(*md, fields)));
    roots.push_back(dbf_Root{md->Name().str() + "/filled", md, objects.back()->obj});
    filledFields += fields;
  }
  ASSERT_GE(roots.size(), 20u);
  EXPECT_GT(filledFields, 30);
  dbf_SaveRoots(roots, Path("all.odb"));
  std::vector<dbf_LoadedRoot> back = dbf_OpenRoots(Path("all.odb"));
  ASSERT_EQ(back.size(), roots.size());
  for (std::size_t i = 0; i < roots.size(); ++i) {
    SCOPED_TRACE(roots[i].name.str());
    EXPECT_EQ(back[i].name, roots[i].name);
    ASSERT_EQ(&back[i].object.Class(), roots[i].cls);
    EXPECT_TRUE(roots[i].cls->Equal(back[i].object.Get(), roots[i].object));
    EXPECT_EQ(roots[i].cls->UidOf(back[i].object.Get()), roots[i].cls->UidOf(roots[i].object));
  }
}

TEST_F(DbRoundTrip, EveryElementClassInsideTheModelContainers) {
  ddr_Database db;
  ddr_Model& model = db.CreateModel("Model-1");
  std::set<std::string> stored;
  for (const cow_String& repoName : model.RepositoryNames()) {
    mdl_Repository* repo = model.ModifyRepository(repoName.view());
    for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) {
      if (!md->CanConstruct() || !md->IsA(repo->ElementClass())) continue;
      int fields = 0;
      repo->InsertNew(std::to_string(repo->Keys().size()), md->NewDefault());
      repo->InsertNew(std::to_string(repo->Keys().size()), dbtT_NewFilled(*md, fields));
      stored.insert(md->Name().str());
    }
  }
  EXPECT_TRUE(stored.count("kadC_AdptMeshCtrl"));
  EXPECT_GE(stored.size(), 3u);
  EXPECT_TRUE(stored.count("dbtT_Sample"));
  db.CreateModel("Model-2");  // empty containers
  dbf_Save(db, Path("models.odb"));
  ddr_Database back = dbf_Open(Path("models.odb"));
  EXPECT_TRUE(back == db);
  EXPECT_EQ(back.ModelNames(), db.ModelNames());
  // The catalog lists the element classes that were stored, each with its type id and version.
  for (const std::string& name : stored) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(name);
    EXPECT_EQ(dbtT_Query(Path("models.odb"), "SELECT typeId || '/' || version FROM dbf_Catalog WHERE name = '" + name + "'"),
              std::to_string(md->TypeId()) + "/" + std::to_string(md->Version()))
        << name;
  }
}

TEST_F(DbRoundTrip, ValuesThatStressTheFileComeBackBitForBit) {
  ddr_Database db = dbtT_MakeDatabase(3);
  dbf_Save(db, Path("stress.odb"));
  ddr_Database back = dbf_Open(Path("stress.odb"));
  ASSERT_TRUE(back == db);
  auto* samples = dynamic_cast<const dbtT_SampleCont*>(back.FindModel("Model-1")->FindRepository("samples"));
  ASSERT_NE(samples, nullptr);
  const dbtT_Sample& s = *samples->ConstGet("Filled");
  const dbtT_Sample want = dbtT_Sample::Filled();
  EXPECT_TRUE(std::isnan(s.ratio));
  EXPECT_EQ(s.label.size(), want.label.size());
  EXPECT_EQ(s.label.view(), want.label.view());  // escapes and UTF-8 kept
  EXPECT_TRUE(std::signbit(s.table(0, 1)));      // negative zero in a table
  EXPECT_EQ(std::bit_cast<std::uint64_t>(s.table(0, 2)), std::bit_cast<std::uint64_t>(1e-310));
  EXPECT_EQ(s.doubles[5], 5e-324);
  EXPECT_TRUE(std::isinf(s.doubles[2]) && s.doubles[2] > 0);
  EXPECT_TRUE(std::isnan(s.doubles[4]));
  EXPECT_EQ(s.labels[3].view(), "\xF0\x9F\x98\x80");
  EXPECT_EQ(s.count, INT32_MIN);
}

TEST_F(DbRoundTrip, EmptyDatabaseAndManyModels) {
  ddr_Database empty;
  dbf_Save(empty, Path("empty.odb"));
  EXPECT_TRUE(dbf_Open(Path("empty.odb")) == empty);

  ddr_Database many;
  for (int i = 1; i <= 12; ++i) many.CreateModel("Model-" + std::to_string(i));
  dbf_Save(many, Path("many.odb"));
  ddr_Database back = dbf_Open(Path("many.odb"));
  EXPECT_TRUE(back == many);
  // natural order: Model-2 before Model-10
  std::vector<cow_String> names = back.ModelNames();
  ASSERT_EQ(names.size(), 12u);
  EXPECT_EQ(names[1], "Model-2");
  EXPECT_EQ(names[11], "Model-12");
}

// --- the layout ---------------------------------------------------------------------------------

TEST_F(DbRoundTrip, LayoutReadsInTheSqliteShell) {
  ddr_Database db = dbtT_MakeDatabase(2);
  const std::string f = Path("layout.odb");
  dbf_Save(db, f);

  EXPECT_EQ(dbtT_Query(f, "PRAGMA application_id"), std::to_string(0x514D5841));
  EXPECT_EQ(dbtT_Query(f, "PRAGMA user_version"), std::to_string(dbf_DatabaseVersion()));
  EXPECT_EQ(dbtT_QueryColumn(f, "SELECT key || '=' || value FROM dbf_Meta ORDER BY key"),
            (std::vector<std::string>{"databaseVersion=" + std::to_string(dbf_DatabaseVersion()),
                                      "format=QMXOdbAttr model database", "libraryVersion=1.0.0"}));
  EXPECT_EQ(dbtT_QueryColumn(f, "SELECT name FROM dbf_Roots ORDER BY rowid"),
            (std::vector<std::string>{"Model-1", "Model-10"}));

  // One table per class, one column per persistent field, objects as OID/ClassID pairs.
  EXPECT_EQ(dbtT_QueryColumn(f, "SELECT name FROM pragma_table_info('dbtT_Sample')"),
            (std::vector<std::string>{"OID", "UID", "count", "ratio", "enabled", "label", "mode", "region", "table",
                                      "ints", "doubles", "flags", "labels", "regions", "modes", "detail#OID",
                                      "detail#ClassID", "fixed#OID", "fixed#ClassID", "details"}));
  const std::string filled = " FROM dbtT_Sample WHERE UID = '" +
                             dbtT_Query(f, "SELECT UID FROM dbtT_Sample WHERE count < 0") + "'";
  struct Case {
    const char* expr;
    std::string want;
  };
  const Case cases[] = {
      {"mode", "THIRD_MODE"},
      {"typeof(ratio)", "null"},  // NaN
      {"enabled", "1"},
      {"region", "Part-1.Set-2"},
      {"length(CAST(label AS BLOB))", std::to_string(dbtT_Sample::Filled().label.size())},
      {"ints", "[2147483647,-1,0]"},
      {"doubles", "[0.1,-0,9e999,-9e999,null,5e-324]"},
      {"flags", "[true,false,true]"},
      {"labels", "[\"\",\"[\\\"x\\\"]\",\"\\u0001\\u001f\",\"\xF0\x9F\x98\x80\"]"},
      {"regions", "[\"A\",\"\"]"},
      {"modes", "[\"SECOND_MODE\",\"FIRST_MODE\"]"},
      {"json_valid(doubles) AND json_valid(labels) AND json_valid(details)", "1"},
      {"json_extract(labels, '$[1]')", "[\"x\"]"},
      {"json_array_length(details)", "3"},
      {"json_type(details, '$[1]')", "null"},
      {"\"detail#ClassID\"", std::to_string(dbtT_Detail::TypeId())},
      {"(SELECT note FROM dbtT_Detail d WHERE d.OID = s.\"fixed#OID\")", "fixed"},
      {"(SELECT note FROM dbtT_Detail d WHERE d.OID = json_extract(s.details, '$[0][0]'))", "first"},
      {"(SELECT note FROM dbtT_Detail d WHERE d.OID = (SELECT \"inner#OID\" FROM dbtT_Detail e"
       " WHERE e.OID = s.\"detail#OID\"))",
       "inner"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(dbtT_Query(f, std::string("SELECT ") + c.expr + " FROM dbtT_Sample s WHERE count < 0"), c.want) << c.expr;
  EXPECT_EQ(dbtT_Query(f, "SELECT typeof(\"detail#OID\")" + filled), "integer");
  EXPECT_EQ(dbtT_Query(f, "SELECT typeof(\"detail#OID\") FROM dbtT_Sample WHERE count = 0"), "null");

  // The table of doubles: rows and columns as 32-bit little-endian, then the values row by row
  // (1, -0, 1e-310, inf, -inf, the largest double) as little-endian IEEE doubles.
  const std::string want = "0200000003000000" "000000000000F03F" "0000000000000080" "2BE6708B68120000"
                           "000000000000F07F" "000000000000F0FF" "FFFFFFFFFFFFEF7F";
  EXPECT_EQ(dbtT_Query(f, "SELECT hex(\"table\")" + filled), want);
  EXPECT_EQ(dbtT_Query(f, "SELECT hex(\"table\") FROM dbtT_Sample WHERE count = 0"), "0000000000000000");

  // The container's elements: one row of dbf_Elements each, in key order, with the container's
  // class id and row, the key, and the element's row and class id; the container's own row holds
  // no list of them.
  const std::string cls = std::to_string(kadC_AdptMeshCtrl::TypeId());
  const std::string cont = std::to_string(kadC_AdptMeshCtrlCont::TypeId());
  EXPECT_EQ(dbtT_QueryColumn(f, "SELECT OwnerID || ' ' || Owner || ' ' || Key || ' ' || OID || ' ' || ClassID"
                                " FROM dbf_Elements WHERE ClassID = " + cls + " ORDER BY rowid"),
            (std::vector<std::string>{cont + " 1 C-1 1 " + cls, cont + " 1 C-2 2 " + cls}));
  EXPECT_EQ(dbtT_QueryColumn(f, "SELECT name FROM pragma_table_info('kadC_AdptMeshCtrlCont')"),
            (std::vector<std::string>{"OID", "UID"}));
  EXPECT_EQ(dbtT_Query(f, "SELECT smoothingAlgorithm FROM kadC_AdptMeshCtrl WHERE OID = 1"), "GEOMETRY_ENHANCED");

  // The stored field tables follow the metadata.
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kadC_AdptMeshCtrl");
  std::vector<std::string> fields;
  for (const auto& a : md->Attributes())
    fields.push_back(a.handle.Name().str() + ":" + std::to_string(a.handle.Number()) + ":" + std::to_string(a.type));
  EXPECT_EQ(dbtT_QueryColumn(f, "SELECT name || ':' || number || ':' || type FROM dbf_Fields"
                                " WHERE class = 'kadC_AdptMeshCtrl' ORDER BY position"),
            fields);
  EXPECT_EQ(dbtT_Query(f, "SELECT fieldHash FROM dbf_Catalog WHERE name = 'kadC_AdptMeshCtrl'"),
            dbf_FieldTableHash(md->Attributes()));
  EXPECT_EQ(dbtT_Query(f, "PRAGMA integrity_check"), "ok");
}

TEST_F(DbRoundTrip, FieldTableHashChangesWithEveryPartOfAField) {
  auto attrs = [](const char* name, int number, int type, int count, int collection) {
    return std::vector<cls_Attribute>{{cls_FieldHandle(0, "a"), cls_AttrInt, 1, 0},
                                      {cls_FieldHandle(number, name), type, count, collection}};
  };
  const std::string base = dbf_FieldTableHash(attrs("b", 1, cls_AttrDouble, 1, 0));
  EXPECT_EQ(base.size(), 16u);
  EXPECT_EQ(base.find_first_not_of("0123456789abcdef"), std::string::npos);
  EXPECT_EQ(dbf_FieldTableHash(attrs("b", 1, cls_AttrDouble, 1, 0)), base);
  const std::vector<cls_Attribute> variants[] = {
      attrs("c", 1, cls_AttrDouble, 1, 0),  attrs("b", 2, cls_AttrDouble, 1, 0), attrs("b", 1, cls_AttrInt, 1, 0),
      attrs("b", 1, cls_AttrDouble, 2, 0),  attrs("b", 1, cls_AttrDouble, 1, 1), attrs("b1", 1, cls_AttrDouble, 1, 0),
  };
  std::set<std::string> seen{base};
  for (const auto& v : variants) EXPECT_TRUE(seen.insert(dbf_FieldTableHash(v)).second);
  // the order of the fields counts too
  std::vector<cls_Attribute> swapped = attrs("b", 1, cls_AttrDouble, 1, 0);
  std::swap(swapped[0], swapped[1]);
  EXPECT_NE(dbf_FieldTableHash(swapped), base);
}

TEST_F(DbRoundTrip, OpeningChangesNothingAndUpgradeWritesACopy) {
  ddr_Database db = dbtT_MakeDatabase(4);
  const std::string in = Path("in.odb"), out = Path("out.odb");
  dbf_Save(db, in);
  const auto before = dbtT_ReadBytes(in);
  const auto mtime = std::filesystem::last_write_time(in);
  EXPECT_TRUE(dbf_Open(in) == db);
  EXPECT_EQ(dbtT_ReadBytes(in), before);
  EXPECT_EQ(std::filesystem::last_write_time(in), mtime);
  EXPECT_EQ(dbtT_ListDir(dir_), (std::vector<std::string>{"in.odb"}));

  dbf_Upgrade(in, out);
  EXPECT_EQ(dbtT_ReadBytes(in), before);
  EXPECT_TRUE(dbf_Open(out) == db);
  // upgrading a file onto itself replaces it whole
  dbf_Upgrade(out, out);
  EXPECT_TRUE(dbf_Open(out) == db);
  EXPECT_EQ(dbtT_ListDir(dir_), (std::vector<std::string>{"in.odb", "out.odb"}));
}

TEST_F(DbRoundTrip, EveryJournalModeAndPageSizeGivesTheSameDatabase) {
  ddr_Database db = dbtT_MakeDatabase(50);
  struct Case {
    dbf_Journal journal;
    int page;
  };
  const Case cases[] = {{dbf_Journal::Rollback, 512},  {dbf_Journal::Rollback, 4096}, {dbf_Journal::Rollback, 65536},
                        {dbf_Journal::Wal, 4096},      {dbf_Journal::Off, 16384}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.page);
    dbf_SaveOptions options;
    options.journal = c.journal;
    options.pageSize = c.page;
    const std::string f = Path("mode.odb");
    dbf_Save(db, f, options);
    EXPECT_TRUE(dbf_Open(f) == db);
    const auto bytes = dbtT_ReadBytes(f);
    ASSERT_GE(bytes.size(), 100u);
    EXPECT_EQ((bytes[16] << 8 | bytes[17]) == 1 ? 65536 : (bytes[16] << 8 | bytes[17]), c.page);
    EXPECT_EQ(bytes[18], 1);  // a plain rollback-journal file, whatever it was written with
    EXPECT_EQ(bytes[19], 1);
    EXPECT_EQ(bytes[20], 8);  // the checksum bytes of every page
    EXPECT_EQ(dbtT_ListDir(dir_), (std::vector<std::string>{"mode.odb"}));
  }
  dbf_SaveOptions bad;
  for (int page : {0, 256, 1000, 131072}) {
    bad.pageSize = page;
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Save(db, Path("bad.odb"), bad); });
    EXPECT_EQ(e.Message(), "Cannot save the model database \"" + Path("bad.odb") + "\": the page size " +
                               std::to_string(page) + " is not a power of two from 512 to 65536");
  }
  EXPECT_FALSE(std::filesystem::exists(Path("bad.odb")));
}

}  // namespace
