// Writes the seed files of the file reader's corpus: one small database file per example script
// (run after 00_models.jsonl) and one without models, at the smallest
// page size so that the corpus stays small and mutations hit more of the structure.
//   fuzz_seeds EXAMPLES_DIR OUT_DIR
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"

#include <nlohmann/json.hpp>

namespace fs = std::filesystem;

namespace {

bool RunScript(cmd_Session& session, const fs::path& script) {
  std::ifstream in(script);
  std::string line;
  std::size_t number = 0;
  bool ok = static_cast<bool>(in);
  while (std::getline(in, line)) {
    ++number;
    const auto first = line.find_first_not_of(" \t\r");
    if (first == std::string::npos || line[first] == '#') continue;
    const cmd_Json r = session.ExecuteLine(line, number);
    if (!r["ok"].get<bool>()) {
      std::cerr << script.string() << ":" << number << ": " << r["error"].dump() << '\n';
      ok = false;
    }
  }
  return ok;
}

void Save(const cmd_Session& session, const fs::path& file) {
  dbf_SaveOptions options;
  options.journal = dbf_Journal::Off;
  options.pageSize = 512;
  dbf_Save(session.Database(), file.string(), options);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: fuzz_seeds EXAMPLES_DIR OUT_DIR\n";
    return 2;
  }
  const fs::path examples = argv[1], out = argv[2];
  fs::create_directories(out);
  std::vector<fs::path> scripts;
  for (const auto& e : fs::directory_iterator(examples))
    if (e.path().extension() == ".jsonl" && e.path().filename() != "00_models.jsonl") scripts.push_back(e.path());
  std::sort(scripts.begin(), scripts.end());
  bool ok = true;
  try {
    Save(cmd_Session(), out / "empty.odb");
    for (const auto& script : scripts) {
      cmd_Session one;
      ok = RunScript(one, examples / "00_models.jsonl") && RunScript(one, script) && ok;
      Save(one, out / (script.stem().string() + ".odb"));
    }
  } catch (const std::exception& e) {
    std::cerr << e.what() << '\n';
    return 1;
  }
  return ok ? 0 : 1;
}
