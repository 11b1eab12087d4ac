// Files that are not whole model databases are refused with a clear reason that names the file:
// missing, empty, foreign, truncated, with flipped bytes, and files whose rows
// contradict their catalog. Nothing crashes and nothing is half loaded.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "kad/kadC_AdptMeshCtrl.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Reader.h"
#include "dbfile/dbf_RowReader.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/dbc_Converter.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

class DbRefusal : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-refusal");
    good_ = Path("good.odb");
    dbf_Save(dbtT_MakeDatabase(300), good_);
    bytes_ = dbtT_ReadBytes(good_);
  }
  std::string Path(const std::string& name) const { return dir_ + "/" + name; }
  std::string Prefix(const std::string& file) const { return "Cannot open the model database \"" + file + "\": "; }
  // The refusal of opening a file; its message starts with the file's name.
  std::string Reason(const std::string& file) {
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(file); });
    const std::string prefix = Prefix(file);
    EXPECT_EQ(e.Message().substr(0, prefix.size()), prefix);
    return e.Message().substr(std::min(prefix.size(), e.Message().size()));
  }
  std::string dir_, good_;
  std::vector<unsigned char> bytes_;
};

TEST_F(DbRefusal, FilesThatAreNotModelDatabases) {
  const std::string plain = Path("plain.sqlite"), stamped = Path("stamped.sqlite");
  const std::string stamp = "PRAGMA application_id = " + std::to_string(0x514D5841) + "; CREATE TABLE t (x);";
  for (const auto& [file, sql] : {std::pair{plain, std::string("CREATE TABLE t (x); INSERT INTO t VALUES (1);")},
                                  std::pair{stamped, stamp}}) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &db), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(db);
  }
  std::mt19937 gen(42);
  std::vector<unsigned char> noise(8192);
  for (auto& b : noise) b = static_cast<unsigned char>(gen());
  dbtT_WriteBytes(Path("noise.odb"), noise);
  dbtT_WriteBytes(Path("empty.odb"), {});
  dbtT_WriteBytes(Path("text.odb"), {'h', 'e', 'l', 'l', 'o'});
  std::filesystem::create_directory(Path("folder.odb"));

  struct Case {
    std::string file;
    std::string reason;
  };
  const Case cases[] = {
      {Path("missing.odb"), "there is no such file"},
      {Path("folder.odb"), "it is a directory, not a file"},
      {Path("empty.odb"), "the file is empty"},
      {Path("text.odb"), "the file is not a model database (it is not an SQLite database)"},
      {Path("noise.odb"), "the file is not a model database (it is not an SQLite database)"},
      {plain, "the file is not a model database (its application id is 0x00000000, not 0x514d5841)"},
      {stamped, "the file is damaged (its pages carry no checksums)"},
  };
  for (const Case& c : cases) EXPECT_EQ(Reason(c.file), c.reason) << c.file;
}

TEST_F(DbRefusal, TruncatedFiles) {
  const std::size_t page = 16384;
  ASSERT_EQ(bytes_.size() % page, 0u);
  struct Case {
    std::size_t size;
    std::string reason;
  };
  const std::string header = "the file is damaged (truncated: it holds ";
  std::vector<Case> cases = {{10, header + "10 of the 100 bytes of its header)"},
                             {99, header + "99 of the 100 bytes of its header)"}};
  for (std::size_t size : {std::size_t{100}, page, bytes_.size() - page, bytes_.size() - 1})
    cases.push_back({size, header + std::to_string(size) + " of its " + std::to_string(bytes_.size()) + " bytes)"});
  for (const Case& c : cases) {
    const std::string f = Path("cut.odb");
    dbtT_WriteBytes(f, std::vector<unsigned char>(bytes_.begin(), bytes_.begin() + static_cast<long>(c.size)));
    EXPECT_EQ(Reason(f), c.reason) << c.size;
  }
  // a file grown past its pages is no more whole than one cut short
  auto longer = bytes_;
  longer.resize(bytes_.size() + page);
  dbtT_WriteBytes(Path("long.odb"), longer);
  EXPECT_EQ(Reason(Path("long.odb")), "the file is damaged (it is 16384 bytes longer than its pages)");
}

// Any byte of any page changed, in the header, the page structure, a value or unused space, is
// caught; no changed file opens.
TEST_F(DbRefusal, EveryFlippedByteIsCaught) {
  std::vector<std::size_t> offsets = {16, 20, 28, 40, 56, 60, 68, 96, 99, 100, 4000, 16383, 16384};
  for (std::size_t at = 101; at < bytes_.size(); at += 1021) offsets.push_back(at);
  offsets.push_back(bytes_.size() - 1);
  int damaged = 0;
  for (std::size_t at : offsets) {
    auto flipped = bytes_;
    flipped[at] ^= 0x10;
    const std::string f = Path("flip.odb");
    dbtT_WriteBytes(f, flipped);
    std::string reason = Reason(f);
    EXPECT_FALSE(reason.empty()) << at;
    damaged += reason.find("damaged") != std::string::npos;
  }
  EXPECT_GE(damaged, static_cast<int>(offsets.size()) - 4);  // a few header bytes read as "not a model database"
  // Header fields that the file's size and layout hang on.
  struct Header {
    std::size_t at;
    unsigned char value;
    std::string reason;
  };
  const Header headers[] = {
      {16, 0x00, "the file is damaged (its header gives the page size 0)"},
      {17, 0x01, "the file is damaged (its header gives the page size 16385)"},
      {20, 0x00, "the file is damaged (its pages carry no checksums)"},
      {31, 0xff, "the file is damaged (truncated: it holds " + std::to_string(bytes_.size()) + " of its "},
  };
  for (const Header& h : headers) {
    auto changed = bytes_;
    changed[h.at] = h.value;
    dbtT_WriteBytes(Path("header.odb"), changed);
    const std::string reason = Reason(Path("header.odb"));
    EXPECT_EQ(reason.substr(0, h.reason.size()), h.reason) << h.at;
  }
  // One flipped bit in a stored double, which SQLite alone would read without complaint.
  dbtT_Edit(good_, "UPDATE kadC_AdptMeshCtrl SET initialFeatureAngle = 1234.5 WHERE OID = 7");
  auto edited = dbtT_ReadBytes(good_);
  const unsigned char pattern[] = {0x40, 0x93, 0x4A, 0x00, 0x00, 0x00, 0x00, 0x00};  // 1234.5, big-endian
  auto it = std::search(edited.begin(), edited.end(), std::begin(pattern), std::end(pattern));
  ASSERT_NE(it, edited.end());
  *(it + 2) ^= 0x01;
  dbtT_WriteBytes(Path("value.odb"), edited);
  const std::string reason = Reason(Path("value.odb"));
  EXPECT_EQ(reason.substr(0, 26), "the file is damaged (page ") << reason;
  EXPECT_EQ(reason.substr(reason.size() - 20), " fails its checksum)") << reason;
}

// Opening reads no index of the file's own tables; a changed byte there is refused all the same,
// naming the page.
TEST_F(DbRefusal, PagesNoRowIsReadFromAreChecked) {
  const std::vector<std::string> roots =
      dbtT_QueryColumn(good_, "SELECT rootpage FROM sqlite_master WHERE type = 'index' ORDER BY rootpage");
  ASSERT_GE(roots.size(), 3u);
  for (const std::string& root : roots) {
    const std::size_t page = std::stoul(root);
    auto flipped = bytes_;
    flipped[(page - 1) * 16384 + 8000] ^= 0x04;
    dbtT_WriteBytes(Path("index.odb"), flipped);
    EXPECT_EQ(Reason(Path("index.odb")), "the file is damaged (page " + root + " fails its checksum)");
  }
}

// Files whose pages are sound but whose rows contradict the format: what a faulty tool writing
// through the checksums could leave.
TEST_F(DbRefusal, RowsThatContradictTheFormat) {
  const std::string ctrl = std::to_string(kadC_AdptMeshCtrl::TypeId());
  // The row of dbf_Elements that holds a key of the controls.
  const auto elementRow = [&](const char* key) {
    return dbtT_Query(good_, std::string("SELECT rowid FROM dbf_Elements WHERE Key = '") + key + "'");
  };
  // Row 1 of the controls copied as row 301.
  const std::string copyRow1 =
      "INSERT INTO kadC_AdptMeshCtrl SELECT 301, UID, advection, smoothingAlgorithm, smoothingPriority,"
      " initialFeatureAngle, transitionFeatureAngle, momentumAdvection, remeshPredictor, curvatureRefinement,"
      " volumetricSmoothingWeight, standardVolumetricSmoothingWeight, laplacianSmoothingWeight,"
      " equipotentialSmoothingWeight, meshConstraintAngle, originalConfigurationProjectionWeight"
      " FROM kadC_AdptMeshCtrl WHERE OID = 1";
  struct Case {
    const char* what;
    std::string sql;
    std::string reason;
  };
  const Case cases[] = {
      {"unknown literal", "UPDATE kadC_AdptMeshCtrl SET advection = 'SIDEWAYS' WHERE OID = 3",
       "the file is damaged (the field \"advection\" of row 3 of class kadC_AdptMeshCtrl holds the literal "
       "\"SIDEWAYS\": omu_PrimEnum(const cow_String&) - str not allowed: SIDEWAYS  Permissible: FIRST_ORDER_ADVECTION, SECOND_ORDER_ADVECTION)"},
      // Rows before it hold good literals of the same field, already met and kept.
      {"unknown literal after good ones", "UPDATE kadC_AdptMeshCtrl SET smoothingAlgorithm = 'GEOMETRY' WHERE OID = 300",
       "the file is damaged (the field \"smoothingAlgorithm\" of row 300 of class kadC_AdptMeshCtrl holds the "
       "literal \"GEOMETRY\": omu_PrimEnum(const cow_String&) - str not allowed: GEOMETRY  Permissible: STANDARD, GEOMETRY_ENHANCED, ANALYSIS_PRODUCT_DEFAULT)"},
      {"text for a number", "UPDATE kadC_AdptMeshCtrl SET initialFeatureAngle = 'wide' WHERE OID = 3",
       "the file is damaged (the field \"initialFeatureAngle\" of row 3 of class kadC_AdptMeshCtrl holds no number)"},
      {"number too large for an int", "UPDATE dbtT_Sample SET count = 4294967296 WHERE OID = 1",
       "the file is damaged (the field \"count\" of row 1 of class dbtT_Sample holds no 32-bit integer)"},
      {"bool out of range", "UPDATE dbtT_Sample SET enabled = 2 WHERE OID = 1",
       "the file is damaged (the field \"enabled\" of row 1 of class dbtT_Sample holds no boolean)"},
      {"malformed list", "UPDATE dbtT_Sample SET ints = '[1,' WHERE OID = 1",
       "the file is damaged (the field \"ints\" of row 1 of class dbtT_Sample holds malformed list text)"},
      {"list of the wrong kind", "UPDATE dbtT_Sample SET flags = '[1,0]' WHERE OID = 1",
       "the file is damaged (the field \"flags\" of row 1 of class dbtT_Sample holds malformed list text)"},
      {"table of the wrong size", "UPDATE dbtT_Sample SET \"table\" = x'010000000100000000' WHERE OID = 1",
       "the file is damaged (the field \"table\" of row 1 of class dbtT_Sample holds no table of doubles)"},
      {"half a reference", "UPDATE dbtT_Sample SET \"fixed#ClassID\" = NULL WHERE OID = 1",
       "the file is damaged (the field \"fixed\" of row 1 of class dbtT_Sample holds a malformed reference)"},
      {"bad uid", "UPDATE kadC_AdptMeshCtrl SET UID = 'nope' WHERE OID = 2",
       "the file is damaged (the field \"UID\" of row 2 of class kadC_AdptMeshCtrl holds no uid)"},
      {"row held twice",
       "UPDATE dbf_Elements SET OID = 1 WHERE Key = 'C-2'",
       "the file is damaged (row 1 of class kadC_AdptMeshCtrl is held twice)"},
      {"row held by nothing", "UPDATE dbf_Catalog SET rows = 301 WHERE name = 'kadC_AdptMeshCtrl';" + copyRow1,
       "the file is damaged (1 of the 301 rows of class kadC_AdptMeshCtrl belong to nothing it holds)"},
      {"a row beyond the catalog's count", copyRow1,
       "the file is damaged (the rows of class kadC_AdptMeshCtrl are not 300 rows numbered from 1 up)"},
      {"a row numbered below 1", "UPDATE kadC_AdptMeshCtrl SET OID = 0 WHERE OID = 300",
       "the file is damaged (the rows of class kadC_AdptMeshCtrl are not 300 rows numbered from 1 up)"},
      {"a row missing from the catalog's count", "DELETE FROM kadC_AdptMeshCtrl WHERE OID = 300",
       "the file is damaged (row 300 of class kadC_AdptMeshCtrl is missing)"},
      {"a row count inflated past memory",
       "UPDATE kadC_AdptMeshCtrl SET OID = 1000000000000 WHERE OID = 300;"
       "UPDATE dbf_Catalog SET rows = 1000000000000 WHERE name = 'kadC_AdptMeshCtrl';"
       "UPDATE dbf_Elements SET OID = 1000000000000 WHERE OID = 300 AND ClassID = " + ctrl,
       "the file is damaged (999999999700 of the 1000000000000 rows of class kadC_AdptMeshCtrl belong to nothing it "
       "holds)"},
      {"reference to a missing row",
       "UPDATE kadC_AdptMeshCtrl SET OID = 301 WHERE OID = 300;"
       "UPDATE dbf_Catalog SET rows = 301 WHERE name = 'kadC_AdptMeshCtrl'",
       "the file is damaged (row 300 of class kadC_AdptMeshCtrl is missing)"},
      {"reference to a missing class", "UPDATE dbtT_Sample SET \"fixed#ClassID\" = 12345 WHERE OID = 1",
       "the file is damaged (it refers to class id 12345, which its catalog lacks)"},
      {"reference past the rows", "UPDATE dbtT_Sample SET \"fixed#OID\" = 99 WHERE OID = 1",
       "the file is damaged (it refers to row 99 of class dbtT_Detail, which holds 7 rows)"},
      {"missing column", "ALTER TABLE dbtT_Detail DROP COLUMN note",
       "the file is damaged (the table of class dbtT_Detail does not hold its stored columns: SQLite failed while "
       "preparing \"SELECT \"OID\", \"UID\", \"value\", \"note\", \"inner#OID\", \"inner#ClassID\" FROM "
       "\"dbtT_Detail\" ORDER BY \"OID\"\" (no such column: note))"},
      {"missing own table", "DROP TABLE dbf_Roots", "the file is damaged (it has no table dbf_Roots)"},
      {"no table of elements", "DROP TABLE dbf_Elements", "the file is damaged (it has no table dbf_Elements)"},
      // The elements of repositories, one row each.
      {"an element of no repository", "INSERT INTO dbf_Elements VALUES (" + ctrl + ", 1, 'Stray', 1, " + ctrl + ")",
       "the file is damaged (dbf_Elements holds 1 row that belongs to no repository of the file)"},
      {"elements of a repository row that is not there",
       "UPDATE dbf_Elements SET Owner = 7 WHERE Owner = 1 AND ClassID = " + ctrl,
       "the file is damaged (dbf_Elements holds 300 rows that belong to no repository of the file)"},
      {"an integer key among names", "UPDATE dbf_Elements SET Key = 7 WHERE Key = 'C-5'",
       "the file is damaged (the elements of row 1 of class kadC_AdptMeshCtrlCont mix keys that are names with "
       "integer keys)"},
      {"a key that is a blob", "UPDATE dbf_Elements SET Key = x'43' WHERE Key = 'C-5'",
       "the file is damaged (row " + elementRow("C-5") + " of dbf_Elements holds a key that is no name or integer)"},
      {"a key beyond 32 bits", "UPDATE dbf_Elements SET Key = 4294967296 WHERE Key = 'C-5'",
       "the file is damaged (row " + elementRow("C-5") + " of dbf_Elements holds a key beyond 32 bits)"},
      {"a malformed element row", "UPDATE dbf_Elements SET ClassID = 'x' WHERE Key = 'C-5'",
       "the file is damaged (row " + elementRow("C-5") + " of dbf_Elements is malformed)"},
      {"an element row past the rows of its class", "UPDATE dbf_Elements SET OID = 301 WHERE Key = 'C-5'",
       "the file is damaged (it refers to row 301 of class kadC_AdptMeshCtrl, which holds 300 rows)"},
      {"other format", "UPDATE dbf_Meta SET value = 'something else' WHERE key = 'format'",
       "the file is not a model database (its format is \"something else\")"},
      {"versions that disagree", "UPDATE dbf_Meta SET value = '12' WHERE key = 'databaseVersion'",
       "the file is damaged (its database version \"12\" differs from its header's " +
           std::to_string(dbf_DatabaseVersion()) + ")"},
      {"stored fields that do not match their hash", "UPDATE dbf_Fields SET number = 40 WHERE name = 'note'",
       "the file is damaged (the stored fields of class dbtT_Detail do not match their hash)"},
      // What no command can name is not let in by a file either.
      {"a model name with a NUL", "UPDATE dbf_Roots SET name = 'Model' || char(0) || '-1' WHERE name = 'Model-1'",
       "the file is damaged (its list of roots holds a name with a NUL character)"},
      {"an empty model name", "UPDATE dbf_Roots SET name = '' WHERE name = 'Model-1'",
       "the file is damaged (its list of roots holds an empty name)"},
      {"a text value with a NUL", "UPDATE dbtT_Detail SET note = 'a' || char(0) || 'b' WHERE OID = 1",
       "the field \"note\" of row 1 of class dbtT_Detail holds text with a NUL character (at offset 1)"},
      {"a key with a NUL", "UPDATE dbf_Elements SET Key = 'C' || char(0) || '1' WHERE Key = 'C-1'",
       "the field \"keys\" of row 1 of class kadC_AdptMeshCtrlCont holds text with a NUL character (at offset 1)"},
      {"an empty key", "UPDATE dbf_Elements SET Key = '' WHERE Key = 'C-300'",
       "The stored container kadC_AdptMeshCtrlCont holds an empty key"},
      {"a root that is no model",
       "INSERT INTO dbf_Roots VALUES ('Stray', 1, " + std::to_string(dbtT_Detail::TypeId()) + ")",
       "the file holds a dbtT_Detail under the name \"Stray\", where a ddr_Model belongs"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const std::string f = Path("edited.odb");
    dbtT_WriteBytes(f, bytes_);
    dbtT_Edit(f, c.sql);
    EXPECT_EQ(Reason(f), c.reason);
  }
}

// A repository takes its keys from the row instead of copying them; a second read of the same
// field then finds nothing to read, and says so, rather than an empty list.
TEST_F(DbRefusal, KeysHandedOverByARowAreNotReadTwice) {
  const dbc_UpgradeDriver driver;
  dbf_Reader reader(good_, driver);
  dbf_LoadedRow row;
  reader.Load(dbf_Ref{1, cls_MetadataOf("kadC_AdptMeshCtrlCont").TypeId()}, row);
  dbf_RowReader r(reader, row);
  const std::vector<cow_String> keys = r.TakeStringList("keys");
  ASSERT_EQ(keys.size(), 300u);
  EXPECT_EQ(keys.front(), "C-1");
  EXPECT_EQ(keys.back(), "C-300");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { r.ReadStringList("keys"); }).Message(),
            "row 1 of class kadC_AdptMeshCtrlCont has no field \"keys\" left to read");
  // What is not a list of strings is refused as a read refuses it.
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { r.TakeStringList("values"); }).Message(),
            "the field \"values\" of row 1 of class kadC_AdptMeshCtrlCont holds a list of objects, not a plain value");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { r.TakeStringList("names"); }).Message(),
            "row 1 of class kadC_AdptMeshCtrlCont has no field \"names\"");
}

TEST_F(DbRefusal, ObjectsNestedDeeperThanAnyModelAreRefused) {
  ddr_Database db = dbtT_MakeDatabase(1);
  auto* samples = dynamic_cast<dbtT_SampleCont*>(db.ModifyModel("Model-1")->ModifyRepository("samples"));
  dbtT_Detail chain(0, "deepest");
  for (int i = 1; i < 300; ++i) {
    dbtT_Detail outer(i, "level");
    outer.SetInner(chain);
    chain = outer;
  }
  dbtT_Sample deep;
  deep.detail = dbtT_Detail::Handle(chain);
  samples->Insert("Deep", deep);
  dbf_Save(db, Path("deep.odb"));
  EXPECT_EQ(Reason(Path("deep.odb")), "the file is damaged (its objects nest more than 256 levels deep)");
}

TEST_F(DbRefusal, AFailedOpenLeavesTheCallersDatabaseAlone) {
  ddr_Database db = dbtT_MakeDatabase(2);
  const ddr_Database before = db;
  dbtT_Edit(good_, "UPDATE kadC_AdptMeshCtrl SET advection = 'SIDEWAYS' WHERE OID = 300");
  EXPECT_THROW(db = dbf_Open(good_), nex_CmdError);
  EXPECT_TRUE(db == before);
}

}  // namespace
