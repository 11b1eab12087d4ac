#include <algorithm>
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

std::string DumpText(const cmd_Json& v) { return v.dump(-1, ' ', false, cmd_Json::error_handler_t::replace); }

// One line per object: an object whose members are all objects (the database, a model, a
// repository) opens onto lines of its own, one member each; anything else is written compact on
// its member's line. The whole stays one JSON document.
void WriteByObject(std::ostream& out, const cmd_Json& v, int indent) {
  const bool ofObjects = v.is_object() && !v.empty() &&
                         std::all_of(v.begin(), v.end(), [](const cmd_Json& m) { return m.is_object(); });
  if (!ofObjects) {
    out << DumpText(v);
    return;
  }
  const std::string pad(static_cast<std::size_t>(indent) + 1, ' ');
  out << '{';
  bool first = true;
  for (const auto& [key, member] : v.items()) {
    out << (first ? "\n" : ",\n") << pad << DumpText(cmd_Json(key)) << ':';
    WriteByObject(out, member, indent + 1);
    first = false;
  }
  out << '\n' << std::string(static_cast<std::size_t>(indent), ' ') << '}';
}

}  // namespace

int Dump(const std::string& file, const std::string& path, bool pretty) {
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
  if (pretty)
    std::cout << r["result"].dump(2, ' ', false, cmd_Json::error_handler_t::replace);
  else
    WriteByObject(std::cout, r["result"], 0);
  std::cout << std::endl;
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
