#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/odbattr_Commands.h"
#include "cli/odbattr_Progress.h"
#include "cli/odbattr_Script.h"
#include "command/cmd_Check.h"
#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/model/mdl_Repository.h"

namespace odbattr {

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> Scripts(const std::string& dir) {
  std::vector<fs::path> scripts;
  std::error_code ec;
  for (const auto& e : fs::directory_iterator(dir, ec))
    if (e.is_regular_file() && e.path().extension() == ".jsonl") scripts.push_back(e.path());
  std::sort(scripts.begin(), scripts.end());
  return scripts;
}

std::string Plural(std::size_t n, const char* word) {
  return std::to_string(n) + " " + word + (n == 1 ? "" : "s");
}

}  // namespace

// The scripts run in name order in one session, so a later script may fill the models that an
// earlier one made (00_models.jsonl makes them).
int Example(const std::string& dir, const std::string& db) {
  const std::vector<fs::path> scripts = Scripts(dir);
  if (scripts.empty()) {
    Complain("there are no example scripts (*.jsonl) in " + dir);
    return kUnusable;
  }
  const std::string out = db.empty() ? (fs::temp_directory_path() / "odbattr-example.db").string() : db;

  cmd_Session session;
  for (const auto& script : scripts) {
    std::ifstream in(script);
    std::size_t commands = 0, failed = 0;
    Progress progress("running " + script.filename().string());
    const bool complete = ForEachCommand(in, [&](const std::string& line, std::size_t number) {
      progress.Update(++commands, "commands");
      const cmd_Json r = session.ExecuteLine(line, number);
      if (r["ok"].get<bool>()) return;
      ++failed;
      std::cout << "  " << script.filename().string() << ":" << number << ": " << r["error"].dump() << '\n';
    });
    if (!in.is_open() || !complete) {
      Complain("cannot read the example script " + script.string());
      return kUnusable;
    }
    std::cout << script.filename().string() << ": " << Plural(commands, "command") << ", " << commands - failed
              << " succeeded" << std::endl;
  }

  // Through the file and back: what was built must read back equal, and valid.
  ddr_Database back;
  try {
    Progress progress("saving " + out);
    dbf_Save(session.Database(), out);
    progress.Stage("reading it back");
    back = dbf_Open(out);
  } catch (const std::exception& e) {
    Complain(e.what());
    return kUnusable;
  }
  const bool same = back == session.Database();
  std::cout << "saved " << out << (same ? "; it reads back equal" : "; it reads back DIFFERENT from what was built")
            << std::endl;
  for (const auto& [name, model] : back.GetModels()) {
    std::cout << "model " << name << ':';
    for (const auto& repo : model.Get().RepositoryNames()) {
      const std::size_t n = model.Get().FindRepository(repo.view())->Keys().size();
      if (n) std::cout << ' ' << repo << " (" << n << ')';
    }
    // Repositories held by an object of the model (the engineering features) count as well.
    for (const auto& name : model.Get().ObjectNames()) {
      const cls_ClassMetadata* cls = nullptr;
      const void* obj = model.Get().FindObject(name.view(), &cls);
      for (const auto& f : cls->ScriptFields()) {
        const void* child = f.type == cls_AttrObject && f.declared ? f.child(obj) : nullptr;
        const mdl_Repository* repo = child ? f.declared->ClassOf(child).AsRepository(child) : nullptr;
        if (repo && !repo->Keys().empty())
          std::cout << ' ' << name << '.' << f.scriptName << " (" << repo->Keys().size() << ')';
      }
    }
    std::cout << '\n';
  }

  cmd_Checker checker;
  {
    Progress progress("checking " + out);
    checker = cmd_Checker([&](std::size_t n) { progress.Update(n, "objects"); });
    checker.CheckDatabase(back);
  }
  for (const auto& f : checker.Failures()) std::cout << cmd_PathText(f.path) << ": " << f.message << '\n';
  std::cout << Plural(checker.Checked(), "object") << " checked, " << checker.Failures().size() << " invalid"
            << std::endl;
  return session.Failed() || !same || !checker.Failures().empty() ? kFailed : kOk;
}

}  // namespace odbattr
