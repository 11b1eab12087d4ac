#include <iostream>
#include <string>

#include "cli/odbattr_Commands.h"
#include "cli/odbattr_Progress.h"
#include "command/cmd_Check.h"
#include "dbfile/dbf_File.h"

namespace odbattr {

namespace {
std::string Objects(std::size_t n) { return std::to_string(n) + (n == 1 ? " object" : " objects"); }
}  // namespace

int Check(const std::string& file) {
  ddr_Database db;
  try {
    Progress progress("opening " + file);
    progress.Stage("reading and upgrading");
    db = dbf_Open(file);
  } catch (const std::exception& e) {
    Complain(e.what());
    return kUnusable;
  }
  cmd_Checker checker;
  {
    Progress progress("checking " + file);
    checker = cmd_Checker([&](std::size_t n) { progress.Update(n); });
    checker.CheckDatabase(db);
  }
  for (const auto& f : checker.Failures()) std::cout << cmd_PathText(f.path) << ": " << f.message << '\n';
  std::cout << Objects(checker.Checked()) << " checked, " << checker.Failures().size() << " invalid" << std::endl;
  return checker.Failures().empty() ? kOk : kFailed;
}

}  // namespace odbattr
