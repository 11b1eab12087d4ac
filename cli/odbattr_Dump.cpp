#include <filesystem>
#include <iostream>
#include <string>

#include <nlohmann/json.hpp>

#include "cli/odbattr_Commands.h"
#include "cli/odbattr_Progress.h"
#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Version.h"

namespace odbattr {

namespace {

// "Model-1/adaptiveMeshControls/C-1" or ["Model-1","adaptiveMeshControls","C-1"].
cmd_Json PathSteps(const std::string& text) {
  if (!text.empty() && text.front() == '[') return cmd_Json::parse(text);
  cmd_Json steps = cmd_Json::array();
  std::size_t from = 0;
  while (from <= text.size()) {
    const std::size_t slash = std::min(text.find('/', from), text.size());
    if (slash > from) steps.push_back(text.substr(from, slash - from));
    from = slash + 1;
  }
  return steps;
}

}  // namespace

int Dump(const std::string& file, const std::string& path) {
  ddr_Database db;
  try {
    db = dbf_Open(file);
  } catch (const std::exception& e) {
    Complain(e.what());
    return kUnusable;
  }
  cmd_Json command = cmd_Json::object();
  command["op"] = "get";
  try {
    command["path"] = PathSteps(path);
  } catch (const cmd_Json::exception& e) {
    Complain("the path " + path + " is not a JSON array of steps: " + e.what());
    return kFailed;
  }
  cmd_Session session(std::move(db));
  const cmd_Json r = session.Execute(command);
  if (!r["ok"].get<bool>()) {
    Complain(r["error"]["message"].get<std::string>());
    return kFailed;
  }
  std::cout << r["result"].dump(2, ' ', false, cmd_Json::error_handler_t::replace) << std::endl;
  return kOk;
}

std::string VersionText() {
  return std::string("odbattr ") + dbf_LibraryVersion() + " (database version " + std::to_string(dbf_DatabaseVersion()) +
         ")";
}

int Upgrade(const std::string& in, const std::string& out) {
  namespace fs = std::filesystem;
  std::error_code ec;
  // The same file under another name (a link, a relative path) counts as the same file.
  const bool same = fs::exists(out, ec) ? fs::equivalent(in, out, ec)
                                        : fs::weakly_canonical(in, ec) == fs::weakly_canonical(out, ec);
  if (same) {
    Complain("IN and OUT are the same file (" + out + "); upgrade leaves IN as it is and writes a new file");
    return kUnusable;
  }
  dbf_FileVersion version;
  try {
    Progress progress("upgrading " + in);
    progress.Stage("reading, upgrading and writing " + out);
    ddr_Database db = dbf_Open(in);
    version = dbf_ReadFileVersion(in);
    dbf_Save(db, out);
  } catch (const std::exception& e) {
    Complain(e.what());
    return kUnusable;
  }
  if (version.current)
    std::cout << in << " is already at database version " << version.databaseVersion << "; written unchanged as "
              << out << std::endl;
  else
    std::cout << in << " upgraded from database version " << version.databaseVersion << " to "
              << dbf_DatabaseVersion() << " as " << out << std::endl;
  return kOk;
}

}  // namespace odbattr
