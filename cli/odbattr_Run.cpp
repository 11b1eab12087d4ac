#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

#include "cli/odbattr_Commands.h"
#include "cli/odbattr_Progress.h"
#include "cli/odbattr_Script.h"
#include "command/cmd_Session.h"
#include "dbfile/dbf_AtomicFile.h"
#include "dbfile/dbf_File.h"

namespace odbattr {

void Complain(const std::string& message) { std::cerr << "odbattr: " << message << std::endl; }

int Run(const std::string& script, const std::string& db) {
  std::ifstream file;
  std::istream* in = &std::cin;
  if (script != "-") {
    file.open(script);
    if (!file) {
      Complain("cannot read the script " + script);
      return kUnusable;
    }
    in = &file;
  }
  cmd_Session session;
  std::string target = db;  // where the save at the end goes: a symbolic link's target
  if (!db.empty()) {
    try {
      target = dbf_SaveTarget(db);
      // Found now rather than after the script ran, when the save at the end would fail.
      const std::filesystem::path dir = std::filesystem::path(target).parent_path();
      if (!dir.empty() && !std::filesystem::is_directory(dir))
        throw std::runtime_error("the directory \"" + dir.string() + "\" does not exist");
      dbf_CheckWritable(target);
    } catch (const std::exception& e) {
      Complain("cannot use \"" + db + "\" as the database: " + e.what());
      return kUnusable;
    }
  }
  // Opened and saved through the session's own commands, so that a save by another process while
  // the script ran is refused, and the script's own saves of the file are not taken for one.
  auto fileCommand = [&](const char* op) {
    cmd_Json c = cmd_Json::object();
    c["op"] = op;
    c["file"] = db;
    const cmd_Json r = session.Execute(c);
    if (!r.value("ok", false)) throw std::runtime_error(r["error"].value("message", std::string()));
  };
  if (!db.empty() && std::filesystem::exists(target)) {
    try {
      Progress progress("opening " + db);
      fileCommand("open");
    } catch (const std::exception& e) {
      Complain(e.what());
      return kUnusable;
    }
  }
  std::size_t commands = 0, failures = 0;
  bool complete = false;
  {
    Progress progress("running " + (script == "-" ? std::string("standard input") : script));
    complete = ForEachCommand(*in, [&](const std::string& line, std::size_t number) {
      const cmd_Json r = session.ExecuteLine(line, number);
      if (!r.value("ok", false)) ++failures;
      progress.Update(++commands, "commands");
      // Invalid UTF-8 never reaches a result (the line is refused), but the output must not depend on it.
      std::cout << r.dump(-1, ' ', false, cmd_Json::error_handler_t::replace) << '\n' << std::flush;
    });
  }
  if (!complete) {
    Complain("reading the script " + script + " failed");
    return kUnusable;
  }
  if (!db.empty()) {
    try {
      Progress progress("saving " + db);
      fileCommand("save");
      if (target != db) Complain(db + " is a symbolic link; saved " + target + ", which it leads to");
    } catch (const std::exception& e) {
      Complain(e.what());
      return kUnusable;
    }
  }
  // For a person at a terminal; a script reading the results has them on standard output.
  if (StandardErrorIsTerminal()) {
    std::cerr << "odbattr: " << commands << (commands == 1 ? " command, " : " commands, ") << failures
              << (failures == 1 ? " failure" : " failures") << (db.empty() ? ", nothing saved" : ", saved " + db)
              << std::endl;
  }
  return session.Failed() ? kFailed : kOk;
}

}  // namespace odbattr
