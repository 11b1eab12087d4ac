#include <iostream>
#include <string>

#include "cli/odbattr_Commands.h"
#include "cli/odbattr_Progress.h"
#include "command/cmd_Advice.h"
#include "command/cmd_Check.h"
#include "dbfile/dbf_File.h"

namespace odbattr {

namespace {
std::string Objects(std::size_t n) { return std::to_string(n) + (n == 1 ? " object" : " objects"); }
std::string Warnings(std::size_t n) { return std::to_string(n) + (n == 1 ? " warning" : " warnings"); }
}  // namespace

int Check(const std::string& file, bool strict) {
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
    checker = cmd_Checker([&](std::size_t n) { progress.Update(n, "objects"); });
    checker.CheckDatabase(db);
  }
  cmd_Adviser adviser;
  adviser.AdviseDatabase(db);
  for (const auto& f : checker.Failures()) std::cout << cmd_PathText(f.path) << ": " << f.message << '\n';
  for (const auto& w : adviser.Warnings())
    std::cout << cmd_PathText(w.path) << (w.member.empty() ? "" : " " + w.member) << ": warning " << w.code << ": "
              << w.message << '\n';
  std::cout << Objects(checker.Checked()) << " checked, " << checker.Failures().size() << " invalid";
  if (!adviser.Warnings().empty()) std::cout << ", " << Warnings(adviser.Warnings().size());
  std::cout << std::endl;
  if (!checker.Failures().empty()) return kFailed;
  return strict && !adviser.Warnings().empty() ? kFailed : kOk;
}

}  // namespace odbattr
