#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include <nlohmann/json.hpp>

#include "cli/odbattr_Commands.h"
#include "cli/odbattr_Script.h"
#include "command/cmd_Session.h"
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
  if (!db.empty() && std::filesystem::exists(db)) {
    try {
      session = cmd_Session(dbf_Open(db));
    } catch (const std::exception& e) {
      Complain(e.what());
      return kUnusable;
    }
  }
  const bool complete = ForEachCommand(*in, [&](const std::string& line, std::size_t) {
    std::cout << session.ExecuteLine(line).dump() << '\n' << std::flush;
  });
  if (!complete) {
    Complain("reading the script " + script + " failed");
    return kUnusable;
  }
  if (!db.empty()) {
    try {
      dbf_Save(session.Database(), db);
    } catch (const std::exception& e) {
      Complain(e.what());
      return kUnusable;
    }
  }
  return session.Failed() ? kFailed : kOk;
}

}  // namespace odbattr
