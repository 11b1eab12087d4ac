// Text and names with a NUL are refused by a save, as opening would refuse them: the file on disk
// stays as it was and no temporary file is left.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

cow_String NulSaveText(const char* before, const char* after) {
  return cow_String(std::string(before) + std::string(1, '\0') + after);
}

dbtT_SampleCont& NulSaveSamples(ddr_Database& db) {
  return *dynamic_cast<dbtT_SampleCont*>(db.ModifyModel("Model-1")->ModifyRepository("samples"));
}

TEST(DbNulSave, TextAndNamesWithANulAreNotWritten) {
  dbtT_Start();
  const std::string dir = qmx_TempDir("db-nul-save");
  const std::string file = dir + "/model.odb";
  dbf_Save(dbtT_MakeDatabase(2), file);
  const std::vector<unsigned char> bytes = dbtT_ReadBytes(file);
  const std::vector<std::string> listing = dbtT_ListDir(dir);

  struct Case {
    const char* what;
    std::function<void(ddr_Database&)> edit;
    std::string reason;
  };
  const Case cases[] = {
      {"a string member",
       [](ddr_Database& db) {
         dbtT_Sample s;
         s.label = NulSaveText("ab", "c");
         NulSaveSamples(db).Insert("S-1", s);
       },
       "the field \"label\" of an object of class dbtT_Sample holds text with a NUL character (at offset 2)"},
      {"a member of a member object",
       [](ddr_Database& db) {
         dbtT_Sample s;
         s.fixed = dbtT_Detail(1, "");
         s.fixed.note = NulSaveText("", "x");
         NulSaveSamples(db).Insert("S-1", s);
       },
       "the field \"note\" of an object of class dbtT_Detail holds text with a NUL character (at offset 0)"},
      {"the last element of a list of strings",
       [](ddr_Database& db) {
         dbtT_Sample s;
         s.labels = cow_List<cow_String>{cow_String("fine"), NulSaveText("abc", "")};
         NulSaveSamples(db).Insert("S-1", s);
       },
       "the field \"labels\" of an object of class dbtT_Sample holds text with a NUL character (at offset 3)"},
      {"a key", [](ddr_Database& db) { NulSaveSamples(db).Insert(NulSaveText("S", "1"), dbtT_Sample()); },
       "the field \"keys\" of an object of class dbtT_SampleCont holds text with a NUL character (at offset 1)"},
      {"a model name",
       [](ddr_Database& db) { db.PutModel(NulSaveText("Model", "-2"), db.GetModels().begin()->second); },
       "a model name holds a NUL character (at offset 5)"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ddr_Database db = dbtT_MakeDatabase(2);
    c.edit(db);
    EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { dbf_Save(db, file); }).Message(),
              "Cannot save the model database \"" + file + "\": " + c.reason);
    EXPECT_EQ(dbtT_ReadBytes(file), bytes);
    EXPECT_EQ(dbtT_ListDir(dir), listing);
  }
  // The same text without the NUL is saved.
  ddr_Database db = dbtT_MakeDatabase(2);
  dbtT_Sample s;
  s.label = "abc";
  NulSaveSamples(db).Insert("S-1", s);
  dbf_Save(db, file);
  EXPECT_TRUE(dbf_Open(file) == db);
}

}  // namespace
