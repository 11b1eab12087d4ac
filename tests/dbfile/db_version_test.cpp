// The version a file was written at, read without loading it: what `odbattr upgrade` reports.
#include <gtest/gtest.h>

#include <string>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Version.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(DbVersion, ACurrentFileAndFilesThatNeedAnUpgrade) {
  dbtT_Start();
  const std::string dir = qmx_TempDir("db-version");
  const std::string file = dir + "/model.odb";
  dbf_Save(dbtT_MakeDatabase(2), file);
  dbf_FileVersion v = dbf_ReadFileVersion(file);
  EXPECT_EQ(v.databaseVersion, dbf_DatabaseVersion());
  EXPECT_TRUE(v.current);

  // One class stored at an older version is enough to need an upgrade.
  dbtT_Edit(file, "UPDATE dbf_Catalog SET version = 829 WHERE name = 'kadC_AdptMeshCtrl'");
  v = dbf_ReadFileVersion(file);
  EXPECT_EQ(v.databaseVersion, dbf_DatabaseVersion());
  EXPECT_FALSE(v.current);

  dbf_Save(dbtT_MakeDatabase(2), file);
  dbtT_Edit(file, "PRAGMA user_version = 860");
  v = dbf_ReadFileVersion(file);
  EXPECT_EQ(v.databaseVersion, 860);
  EXPECT_FALSE(v.current);

  const std::string absent = dir + "/absent.odb";
  const std::string m = qmx_Catch<nex_CmdError>([&] { dbf_ReadFileVersion(absent); }).Message();
  EXPECT_EQ(m.rfind("Cannot read the version of the model database \"" + absent + "\": ", 0), 0u) << m;
}

}  // namespace
