// The command reader. Each input is a script of JSON Lines run line by line in one session, as
// "odbattr run" does. A failed command must leave the database and the change history as they
// were; at the end the database must save and read back equal (checked on one input in 32).
// Files named by "save" and "open" are redirected to a few names in the scratch folder, so that a script never reaches outside it.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "command/cmd_Line.h"
#include "command/cmd_Session.h"
#include "fuzz/fuzz_Common.h"
#include "fuzz/fuzz_SqliteMemory.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/model/ddr_Database.h"

#include <nlohmann/json.hpp>

namespace {

constexpr std::size_t kMaxLines = 256;
constexpr std::size_t kSampleOneIn = 32;

// The line parsed, when it may name a file (a "file" key, perhaps spelled with escapes), with a
// string "file" replaced by a scratch file. kLeft when the line is left to the session to parse:
// it names no file, or does not parse (the session then refuses it with its own answer). A line
// parsed here runs as parsed, not parsed a second time.
enum class Line { kLeft, kParsed, kRedirected };
Line Redirect(std::string_view line, cmd_Json& command) {
  if (line.find("file") == std::string_view::npos && line.find("\\u") == std::string_view::npos) return Line::kLeft;
  try {
    command = cmd_ParseCommand(line);
  } catch (const std::exception&) {
    return Line::kLeft;
  }
  if (!command.is_object() || !command.contains("file") || !command["file"].is_string()) return Line::kParsed;
  const std::string file = command["file"].get<std::string>();
  if (file.empty()) return Line::kParsed;
  command["file"] = fuzz_Scratch() + "/s" + std::to_string(std::hash<std::string>()(file) % 3) + ".odb";
  return Line::kRedirected;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  fuzz_UseOwnSqliteMemory();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  omu_ChangeHistory::Instance().Clear();
  // The scratch files an earlier input saved are removed before this input's first command that
  // names a file, not on every input: most name none, and the removals were a third of an
  // input's system calls.
  bool scratchCleared = false;
  const std::string_view script(reinterpret_cast<const char*>(data), size);
  // The round trip through a file, and the printing of every answer as the tool prints it, cost
  // most of an input's time: they run on a sample of the inputs (chosen by the input's bytes, so
  // that a finding replays), the per-line checks on all.
  const bool sampled = std::hash<std::string_view>()(script) % kSampleOneIn == 0;

  cmd_Session session;
  std::size_t number = 0, from = 0;
  while (from < script.size() && number < kMaxLines) {
    std::size_t end = script.find('\n', from);
    if (end == std::string_view::npos) end = script.size();
    const std::string_view line = script.substr(from, end - from);
    from = end + 1;
    ++number;
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string_view::npos || line[first] == '#') continue;

    const ddr_Database before = session.Database();
    const std::size_t history = omu_ChangeHistory::Instance().Size();
    cmd_Json command;
    const Line how = Redirect(line, command);
    if (how == Line::kRedirected && !scratchCleared) {
      for (const char* name : {"s0.odb", "s1.odb", "s2.odb"}) fuzz_ScratchFile(name);
      scratchCleared = true;
    }
    const cmd_Json r = how != Line::kLeft ? session.Execute(command, number) : session.ExecuteLine(line, number);
    if (!r.is_object() || !r.contains("ok") || !r["ok"].is_boolean()) fuzz_Fail("an answer without \"ok\": ", r.dump());
    if (sampled) (void)r.dump(-1, ' ', false, cmd_Json::error_handler_t::replace);
    if (r["ok"].get<bool>()) continue;
    if (!r.contains("error") || !r["error"].contains("message") || !r["error"]["message"].is_string())
      fuzz_Fail("a failure without a message: ", r.dump(-1, ' ', false, cmd_Json::error_handler_t::replace));
    if (!(session.Database() == before))
      fuzz_Fail("a failed command changed the database: ", r.dump(-1, ' ', false, cmd_Json::error_handler_t::replace));
    if (omu_ChangeHistory::Instance().Size() != history)
      fuzz_Fail("a failed command left changes in the history: ",
                r.dump(-1, ' ', false, cmd_Json::error_handler_t::replace));
  }
  if (sampled) fuzz_RequireRoundTrip(session.Database(), "end.odb");
  omu_ChangeHistory::Instance().Clear();
  return 0;
}
