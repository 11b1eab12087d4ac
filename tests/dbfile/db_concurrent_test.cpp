// Saves that meet other processes: two processes saving one file (one wins, the other is told,
// nothing is lost silently), the replaced file's owner and mode, and the temporary files of saves
// that were killed.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Seen.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

class DbConcurrent : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-concurrent");
    path_ = dir_ + "/model.odb";
    dbf_Save(dbtT_MakeDatabase(2), path_);
  }
  std::string Changed() const {
    return "Cannot save the model database \"" + path_ +
           "\": it was changed by another process since it was opened; save to another file or reopen";
  }
  std::string dir_, path_;
};

// Exit codes of a saving child.
constexpr int kSaved = 0, kRefused = 3, kOther = 4;

// A child that opens the file, says it is ready, waits for the word and saves its own database.
pid_t StartSaver(const std::string& path, const std::string& refusal, const ddr_Database& mine, int ready, int go) {
  const pid_t pid = ::fork();
  if (pid != 0) return pid;
  int code = kOther;
  try {
    dbf_Seen seen;
    seen.Opened(path);
    const ddr_Database opened = dbf_Open(path);
    char c = 'r';
    if (::write(ready, &c, 1) != 1 || ::read(go, &c, 1) != 1) ::_exit(kOther);
    dbf_SaveOptions options;
    options.seen = &seen;
    try {
      dbf_Save(mine, path, options);
      code = kSaved;
    } catch (const nex_CmdError& e) {
      code = e.Message() == refusal ? kRefused : kOther;
    }
  } catch (...) {
  }
  ::_exit(code);
}

TEST_F(DbConcurrent, OfTwoProcessesSavingOneFileOneWinsAndTheOtherIsRefused) {
  const ddr_Database five = dbtT_MakeDatabase(5), seven = dbtT_MakeDatabase(7);
  for (int round = 0; round < 4; ++round) {
    SCOPED_TRACE(round);
    int ready[2], go[2];
    ASSERT_EQ(::pipe(ready), 0);
    ASSERT_EQ(::pipe(go), 0);
    const pid_t a = StartSaver(path_, Changed(), five, ready[1], go[0]);
    const pid_t b = StartSaver(path_, Changed(), seven, ready[1], go[0]);
    ::close(ready[1]);  // a child that fails before it is ready ends the parent's wait
    ::close(go[0]);
    char c[2];
    const bool bothReady = ::read(ready[0], c, 1) == 1 && ::read(ready[0], c + 1, 1) == 1;
    if (bothReady) {
      EXPECT_EQ(::write(go[1], "gg", 2), 2);  // both have read the file: their saves overlap
    }
    ::close(go[1]);
    ::close(ready[0]);
    int sa = 0, sb = 0;
    ::waitpid(a, &sa, 0);
    ::waitpid(b, &sb, 0);
    ASSERT_TRUE(bothReady);
    ASSERT_TRUE(WIFEXITED(sa) && WIFEXITED(sb));
    const int ca = WEXITSTATUS(sa), cb = WEXITSTATUS(sb);
    ASSERT_TRUE((ca == kSaved && cb == kRefused) || (ca == kRefused && cb == kSaved)) << ca << " " << cb;
    // The file holds the winner's database whole.
    EXPECT_TRUE(dbf_Open(path_) == (ca == kSaved ? five : seven));
    EXPECT_EQ(dbtT_ListDir(dir_), std::vector<std::string>{"model.odb"});
  }
}

TEST_F(DbConcurrent, ASaveChecksOnlyWhatItsDatabaseSaw) {
  struct Case {
    const char* what;
    bool otherSaves;
    bool overwrite;
    const char* target;
    bool refused;
  };
  const Case cases[] = {
      {"nobody else saved", false, false, "model.odb", false},
      {"another process saved", true, false, "model.odb", true},
      {"another process saved, overwrite asked", true, true, "model.odb", false},
      {"another process saved, saved elsewhere", true, false, "other.odb", false},
  };
  const ddr_Database four = dbtT_MakeDatabase(4), five = dbtT_MakeDatabase(5);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    dbf_Save(dbtT_MakeDatabase(2), path_);
    dbf_Seen seen;
    seen.Opened(path_);
    if (c.otherSaves) dbf_Save(dbtT_MakeDatabase(3), path_);  // stands for the other process
    const auto before = dbtT_ReadBytes(path_);
    dbf_SaveOptions options;
    options.seen = &seen;
    options.overwrite = c.overwrite;
    const std::string target = dir_ + "/" + c.target;
    if (c.refused) {
      auto e = qmx_Catch<nex_CmdError>([&] { dbf_Save(four, target, options); });
      EXPECT_EQ(e.Message(), Changed());
      EXPECT_EQ(dbtT_ReadBytes(path_), before);
      continue;
    }
    dbf_Save(four, target, options);
    EXPECT_TRUE(dbf_Open(target) == four);
    // Its own save is what it saw last: saving again is no conflict.
    dbf_Save(five, target, options);
    EXPECT_TRUE(dbf_Open(target) == five);
  }
}

TEST_F(DbConcurrent, TheReplacedFileKeepsItsModeAndOwner) {
  ASSERT_EQ(::chmod(path_.c_str(), 0640), 0);
  const bool root = ::geteuid() == 0;
  if (root) {
    ASSERT_EQ(::chown(path_.c_str(), 12345, 23456), 0);
  }
  const ddr_Database three = dbtT_MakeDatabase(3);
  dbf_Save(three, path_);
  struct stat st;
  ASSERT_EQ(::stat(path_.c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 07777, 0640u);
  if (root) {
    EXPECT_EQ(st.st_uid, 12345u);
    EXPECT_EQ(st.st_gid, 23456u);
  }
  EXPECT_TRUE(dbf_Open(path_) == three);
}

TEST_F(DbConcurrent, TemporaryFilesOfSavesThatDiedAreRemovedByTheNextOpenOrSave) {
  const pid_t dead = ::fork();
  if (dead == 0) ::_exit(0);
  ::waitpid(dead, nullptr, 0);
  const std::string deadName = ".model.odb.saving-" + std::to_string(dead) + "-0";
  const std::string liveName = ".model.odb.saving-" + std::to_string(::getppid()) + "-0";  // a running process
  const std::string otherName = ".other.odb.saving-" + std::to_string(dead) + "-0";  // another file's
  for (int step = 0; step < 2; ++step) {
    SCOPED_TRACE(step == 0 ? "open" : "save");
    for (const std::string& n : {deadName, deadName + "-journal", liveName, otherName}) std::ofstream(dir_ + "/" + n) << "x";
    if (step == 0) (void)dbf_Open(path_);
    else dbf_Save(dbtT_MakeDatabase(1), path_);
    EXPECT_EQ(dbtT_ListDir(dir_), (std::vector<std::string>{liveName, otherName, "model.odb"}));
    std::filesystem::remove(dir_ + "/" + liveName);
  }
}

}  // namespace
