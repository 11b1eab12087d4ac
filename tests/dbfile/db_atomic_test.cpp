// A save replaces the file in one step: a save that fails part-way, or whose process is killed
// part-way, leaves the previous file opening exactly as before.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_TypedMetadata.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Roots.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

class DbAtomic : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-atomic");
    path_ = dir_ + "/model.odb";
    before_ = dbtT_MakeDatabase(3);
    dbf_Save(before_, path_);
    bytes_ = dbtT_ReadBytes(path_);
  }
  // The previous file is there, byte for byte, and opens as before.
  void ExpectPreviousFile() {
    EXPECT_EQ(dbtT_ReadBytes(path_), bytes_);
    EXPECT_TRUE(dbf_Open(path_) == before_);
  }
  std::string dir_, path_;
  ddr_Database before_;
  std::vector<unsigned char> bytes_;
};

struct Injected : std::runtime_error {
  Injected() : std::runtime_error("failure injected by the test") {}
};

TEST_F(DbAtomic, ASaveThatFailsAtAnyStageLeavesThePreviousFile) {
  const ddr_Database next = dbtT_MakeDatabase(500);
  struct Case {
    std::string stage;
    std::int64_t afterRows;
  };
  const Case cases[] = {{"row", 1}, {"row", 250}, {"row", 510}, {"commit", 0}, {"sync", 0}, {"rename", 0}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.stage + " " + std::to_string(c.afterRows));
    std::vector<std::string> stages;
    dbf_SaveOptions options;
    options.progress = [&](const char* stage, std::int64_t rows) {
      if (stages.empty() || stages.back() != stage) stages.push_back(stage);
      if (stage == c.stage && rows >= c.afterRows) throw Injected();
    };
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Save(next, path_, options); });
    EXPECT_EQ(e.Message(), "Cannot save the model database \"" + path_ + "\": failure injected by the test");
    EXPECT_EQ(stages.back(), c.stage);
    ExpectPreviousFile();
    EXPECT_EQ(dbtT_ListDir(dir_), std::vector<std::string>{"model.odb"});  // no temporary file left
  }
  // The stages come in their order, and a save without failure replaces the file.
  std::vector<std::string> stages;
  dbf_SaveOptions options;
  std::int64_t rows = 0;
  options.progress = [&](const char* stage, std::int64_t n) {
    if (stages.empty() || stages.back() != stage) stages.push_back(stage);
    rows = n;
  };
  dbf_Save(next, path_, options);
  EXPECT_EQ(stages, (std::vector<std::string>{"row", "commit", "sync", "rename"}));
  EXPECT_GT(rows, 500);
  EXPECT_TRUE(dbf_Open(path_) == next);
}

TEST_F(DbAtomic, ASaveThatCannotStartChangesNothing) {
  struct Case {
    std::string path;
    std::string reason;
  };
  std::filesystem::create_directory(dir_ + "/folder");
  const Case cases[] = {
      {dir_ + "/missing/model.odb", "the directory \"" + dir_ + "/missing\" does not exist"},
      {dir_ + "/folder", "it is a directory"},
      {dir_ + "/", "the path names a directory, not a file"},
      {"", "no file name was given"},
  };
  for (const Case& c : cases) {
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Save(before_, c.path); });
    EXPECT_EQ(e.Message(), "Cannot save the model database \"" + c.path + "\": " + c.reason);
  }
  EXPECT_EQ(dbtT_ListDir(dir_), (std::vector<std::string>{"folder", "model.odb"}));
  ExpectPreviousFile();
}

// Classes whose writing breaks the rules of their metadata, one way each.
enum class Fault { None, Extra, Missing, WrongKind, Twice, Nothing, Unregistered, ReservedName, CaseClash };

constexpr const char* kRogueNames[] = {"dbtT_RogueNone",    "dbtT_RogueExtra",        "dbtT_RogueMissing",
                                       "dbtT_RogueKind",    "dbtT_RogueTwice",        "dbtT_RogueNothing",
                                       "dbtT_RogueUnknown", "dbtT_RogueReservedName", "dbtT_RogueCaseClash"};

template <Fault F>
struct dbtT_Rogue {
  static constexpr const char* kClassName = kRogueNames[static_cast<int>(F)];
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return fw_TypeId(kDbTestKey, 100 + static_cast<unsigned>(F)); }
  dbtT_Rogue() = default;
  explicit dbtT_Rogue(const cls_ReadVisitor& r) : uid(r.GetUid()), a(r.ReadInt("a")) {}
  void DBWrite(const cls_WriteVisitor& w) const {
    if (F == Fault::Nothing) return;
    w.StartWrite(F == Fault::Unregistered ? 12345u : TypeId(), uid);
    if (F == Fault::WrongKind) w.WriteDouble("a", a);
    else if (F != Fault::Missing) w.WriteInt("a", a);
    if (F == Fault::Extra) w.WriteInt("b", 2);
    if (F == Fault::Twice) w.WriteInt("a", a);
  }
  bool operator==(const dbtT_Rogue& o) const { return uid == o.uid && a == o.a; }
  const cls_Uid& GetUid() const { return uid; }
  static void CowDtor(void* p) { mem_Delete(static_cast<dbtT_Rogue*>(p)); }
  static const cls_ClassMetadata& Register() {
    if (const auto* md = cls_ClassRegistrar::Instance().ByName(kClassName)) return *md;
    const char* second = F == Fault::ReservedName ? "oid" : F == Fault::CaseClash ? "A" : "c";
    const cls_AttributeSpec attrs[] = {{0, "a", cls_AttrInt, cls_Single}, {1, second, cls_AttrInt, cls_Single}};
    if (F == Fault::ReservedName || F == Fault::CaseClash) cls_RegisterTyped<dbtT_Rogue>(cls_ClassRegistrar::Instance(), attrs);
    else cls_RegisterTyped<dbtT_Rogue>(cls_ClassRegistrar::Instance(), {attrs[0]});
    return *cls_ClassRegistrar::Instance().ByName(kClassName);
  }
  cls_Uid uid;
  std::int32_t a = 1;
};

template <Fault F>
std::string SaveRogue(const std::string& path) {
  dbtT_Rogue<F> rogue;
  const cls_ClassMetadata& md = dbtT_Rogue<F>::Register();
  try {
    dbf_SaveRoots({dbf_Root{"rogue", &md, &rogue}}, path);
  } catch (const nex_CmdError& e) {
    return e.Message();
  }
  return "saved";
}

TEST_F(DbAtomic, AClassThatBreaksItsMetadataIsRefusedAndNothingIsWritten) {
  const std::string prefix = "Cannot save the model database \"" + path_ + "\": ";
  struct Case {
    std::string got;
    std::string want;
  };
  const Case cases[] = {
      {SaveRogue<Fault::Extra>(path_), "class dbtT_RogueExtra wrote the field \"b\", which its metadata does not declare"},
      {SaveRogue<Fault::Missing>(path_), "class dbtT_RogueMissing did not write its field \"a\""},
      {SaveRogue<Fault::WrongKind>(path_), "class dbtT_RogueKind wrote its field \"a\" as a double, but stores it as an int"},
      {SaveRogue<Fault::Twice>(path_), "class dbtT_RogueTwice wrote its field \"a\" twice"},
      {SaveRogue<Fault::Nothing>(path_), "an object wrote nothing (its DBWrite started no record)"},
      {SaveRogue<Fault::Unregistered>(path_), "an object of type id 12345 belongs to no registered class"},
      {SaveRogue<Fault::ReservedName>(path_),
       "class dbtT_RogueReservedName has a field named \"oid\", which cannot be a column of its table (empty, \"#\", or "
       "the OID or UID column)"},
      {SaveRogue<Fault::CaseClash>(path_),
       "the fields \"a\" and \"A\" of class dbtT_RogueCaseClash would share one column (SQLite column names ignore "
       "case)"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.got, prefix + c.want);
  ExpectPreviousFile();
  EXPECT_EQ(dbtT_ListDir(dir_), std::vector<std::string>{"model.odb"});
  // The same class, written by the rules, stores and reads back.
  EXPECT_EQ(SaveRogue<Fault::None>(dir_ + "/rogue.odb"), "saved");
  auto back = dbf_OpenRoots(dir_ + "/rogue.odb");
  ASSERT_EQ(back.size(), 1u);
  EXPECT_EQ(static_cast<const dbtT_Rogue<Fault::None>*>(back[0].object.Get())->a, 1);
}

TEST_F(DbAtomic, ASaveKilledPartWayLeavesThePreviousFile) {
  const ddr_Database next = dbtT_MakeDatabase(3000);
  // Kill the saving process after some rows, after committing, after syncing: the last two are
  // the moments just before the rename.
  for (const char* stage : {"row", "commit", "sync", "rename"}) {
    SCOPED_TRACE(stage);
    int pipeFds[2];
    ASSERT_EQ(::pipe(pipeFds), 0);
    pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(pipeFds[0]);
      dbf_SaveOptions options;
      options.progress = [&](const char* s, std::int64_t rows) {
        if (std::string(s) == stage && (std::string(s) != "row" || rows == 1500)) {
          char ready = 1;
          (void)!::write(pipeFds[1], &ready, 1);
          ::pause();  // waits for the parent's SIGKILL mid-save
        }
      };
      try {
        dbf_Save(next, path_, options);
      } catch (...) {
      }
      ::_exit(3);
    }
    ::close(pipeFds[1]);
    char ready = 0;
    ASSERT_EQ(::read(pipeFds[0], &ready, 1), 1);
    ::close(pipeFds[0]);
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    ExpectPreviousFile();
    // The open removed the temporary file the killed save left.
    EXPECT_EQ(dbtT_ListDir(dir_), std::vector<std::string>{"model.odb"});
  }
  dbf_Save(next, path_);
  EXPECT_TRUE(dbf_Open(path_) == next);
}

TEST_F(DbAtomic, TheReplacedFileKeepsThePermissionsOfThePreviousOne) {
  ASSERT_EQ(::chmod(path_.c_str(), 0640), 0);
  dbf_Save(dbtT_MakeDatabase(1), path_);
  struct stat st;
  ASSERT_EQ(::stat(path_.c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 07777, 0640u);
}

}  // namespace
