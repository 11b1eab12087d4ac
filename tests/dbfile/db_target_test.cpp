// What a save may replace, and stored text that is not UTF-8.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "dbfile/dbf_AtomicFile.h"
#include "dbfile/dbf_File.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

namespace fs = std::filesystem;

class DbTarget : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-target");
    db_ = dbtT_MakeDatabase(2);
  }
  std::string Refusal(const std::string& path) {
    return qmx_Catch<nex_CmdError>([&] { dbf_Save(db_, path); }).Message();
  }
  std::string dir_;
  ddr_Database db_;
};

TEST_F(DbTarget, WhatIsNotARegularFileIsRefusedAndLeftAsItIs) {
  const std::string fifo = dir_ + "/pipe.odb";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  EXPECT_EQ(Refusal(fifo), "Cannot save the model database \"" + fifo + "\": it is a FIFO, not a regular file");
  EXPECT_TRUE(fs::is_fifo(fifo));
  EXPECT_EQ(Refusal("/dev/null"), "Cannot save the model database \"/dev/null\": it is a device, not a regular file");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  const std::string name("model\0.odb", 10);
  // The message shows the NUL as \0, so that it does not end there.
  EXPECT_EQ(Refusal(dir_ + "/" + name),
            "Cannot save the model database \"" + dir_ + "/model\\0.odb\": the file name holds a NUL character");
  // A link to something that is not a regular file is refused for what it leads to.
  fs::create_symlink(fifo, dir_ + "/to-pipe.odb");
  EXPECT_EQ(Refusal(dir_ + "/to-pipe.odb"),
            "Cannot save the model database \"" + dir_ + "/to-pipe.odb\": it is a FIFO, not a regular file");
  fs::create_directory(dir_ + "/folder");
  fs::create_symlink("folder", dir_ + "/to-folder");
  EXPECT_EQ(Refusal(dir_ + "/to-folder"),
            "Cannot save the model database \"" + dir_ + "/to-folder\": it leads to a directory");
  EXPECT_EQ(dbtT_ListDir(dir_), (std::vector<std::string>{"folder", "pipe.odb", "to-folder", "to-pipe.odb"}));
}

TEST_F(DbTarget, ASaveThroughASymbolicLinkReplacesItsTargetAndKeepsTheLink) {
  fs::create_directory(dir_ + "/real");
  const std::string target = dir_ + "/real/model.odb";
  dbf_Save(dbtT_MakeDatabase(1), target);
  fs::create_symlink("real/model.odb", dir_ + "/link.odb");
  fs::create_symlink("link.odb", dir_ + "/link2.odb");  // a chain of two
  EXPECT_EQ(dbf_SaveTarget(dir_ + "/link2.odb"), dir_ + "/real/model.odb");
  dbf_Save(db_, dir_ + "/link2.odb");
  EXPECT_TRUE(fs::is_symlink(dir_ + "/link.odb"));
  EXPECT_TRUE(fs::is_symlink(dir_ + "/link2.odb"));
  EXPECT_EQ(fs::read_symlink(dir_ + "/link.odb"), "real/model.odb");
  EXPECT_TRUE(dbf_Open(target) == db_);
  // The temporary file was made beside the target, and nothing is left of it.
  EXPECT_EQ(dbtT_ListDir(dir_ + "/real"), std::vector<std::string>{"model.odb"});
  // A link whose target does not exist yet: the save makes the target.
  fs::create_symlink("real/new.odb", dir_ + "/dangling.odb");
  dbf_Save(db_, dir_ + "/dangling.odb");
  EXPECT_TRUE(fs::is_regular_file(dir_ + "/real/new.odb"));
  EXPECT_TRUE(fs::is_symlink(dir_ + "/dangling.odb"));
  EXPECT_EQ(dbf_SaveTarget(dir_ + "/real/new.odb"), dir_ + "/real/new.odb");
}

TEST_F(DbTarget, StoredTextThatIsNotUtf8IsRefusedOnOpen) {
  const std::string path = dir_ + "/model.odb";
  // A bad byte in a key: the repository's row and the key's offset are named.
  dbf_Save(db_, path);
  dbtT_Edit(path, "UPDATE dbf_Elements SET Key = 'C-' || CAST(X'FF' AS TEXT) WHERE Key = 'C-1'");
  const std::string key = qmx_Catch<nex_CmdError>([&] { dbf_Open(path); }).Message();
  EXPECT_EQ(key.rfind("Cannot open the model database \"" + path + "\": the field \"keys\" of row ", 0), 0u) << key;
  EXPECT_NE(key.find(" of class kadC_AdptMeshCtrlCont holds text that is not UTF-8 (byte 0xFF at offset 2)"),
            std::string::npos)
      << key;

  dbf_Save(db_, path);
  dbtT_Edit(path, "UPDATE \"dbf_Roots\" SET \"name\" = 'Model-' || CAST(X'C0AF' AS TEXT) WHERE \"name\" = 'Model-10'");
  const std::string root = qmx_Catch<nex_CmdError>([&] { dbf_Open(path); }).Message();
  EXPECT_NE(root.find("its list of roots holds a name that is not UTF-8"), std::string::npos) << root;
}

// A directory that takes no new file is named, with the system's reason, not SQLite's "unable to
// open database file"; the file already there stays as it was.
TEST_F(DbTarget, ADirectoryThatTakesNoNewFileIsNamed) {
  EXPECT_EQ(Refusal("/proc/self/model.odb"),
            "Cannot save the model database \"/proc/self/model.odb\": the directory \"/proc/self\" cannot be "
            "written (No such file or directory)");
  if (::geteuid() == 0) return;  // the superuser writes into a read-only directory all the same
  const std::string locked = dir_ + "/locked";
  fs::create_directory(locked);
  dbf_Save(db_, locked + "/model.odb");
  const auto bytes = dbtT_ReadBytes(locked + "/model.odb");
  fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Refusal(locked + "/model.odb"), "Cannot save the model database \"" + locked +
                                               "/model.odb\": the directory \"" + locked +
                                               "\" cannot be written (Permission denied)");
  fs::permissions(locked, fs::perms::owner_all);
  EXPECT_EQ(dbtT_ReadBytes(locked + "/model.odb"), bytes);
  EXPECT_EQ(dbtT_ListDir(locked), std::vector<std::string>{"model.odb"});
}

}  // namespace
