#include "command/cmd_Line.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Path.h"
#include "dbfile/dbf_Utf8.h"

namespace {

std::string Hex(char c) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
  return buf;
}

// Where a refusal points: columns count bytes from 1.
std::string Column(std::size_t offset) { return "column " + std::to_string(offset + 1); }

std::string TooDeep() {
  return "The command nests arrays and objects more than " + std::to_string(cmd_kMaxDepth) + " levels deep";
}

// The depth, counting brackets outside strings, checked before any parsing: the first bracket
// beyond the limit ends the scan.
void CheckDepth(std::string_view line) {
  std::size_t depth = 0;
  bool inString = false, escaped = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (inString) {
      if (escaped) escaped = false;
      else if (c == '\\') escaped = true;
      else if (c == '"') inString = false;
    } else if (c == '"') {
      inString = true;
    } else if (c == '[' || c == '{') {
      if (++depth > cmd_kMaxDepth) cmd_Refuse(TooDeep() + " (" + Column(i) + ")");
    } else if ((c == ']' || c == '}') && depth > 0) {
      --depth;
    }
  }
}

void CheckString(const std::string& s, const char* what) {
  if (auto at = dbf_InvalidUtf8At(s))
    cmd_Refuse(std::string("The command holds a ") + what + " that is not valid UTF-8 (byte " + Hex(s[*at]) +
               " at offset " + std::to_string(*at) + ")");
  if (s.find('\0') != std::string::npos)
    cmd_Refuse(std::string("The command holds a ") + what + " with a NUL character (\\u0000), which no name, " +
               "key or value may hold: " + cmd_Json(s).dump());
}

}  // namespace

cmd_Json cmd_ParseCommand(std::string_view line) {
  if (auto at = dbf_InvalidUtf8At(line))
    cmd_Refuse("The command is not valid UTF-8: the byte " + Hex(line[*at]) + " at " + Column(*at) +
               " does not belong to a UTF-8 character");
  CheckDepth(line);
  // The keys seen so far in each object being parsed, innermost last.
  std::vector<std::set<std::string>> keys;
  auto callback = [&](int, cmd_Json::parse_event_t event, cmd_Json& parsed) {
    if (event == cmd_Json::parse_event_t::object_start) {
      keys.emplace_back();
    } else if (event == cmd_Json::parse_event_t::object_end) {
      if (!keys.empty()) keys.pop_back();
    } else if (event == cmd_Json::parse_event_t::key && !keys.empty()) {
      const std::string& key = parsed.get_ref<const std::string&>();
      if (!keys.back().insert(key).second)
        cmd_Refuse("The command gives the key " + cmd_Json(key).dump() + " twice in one object; a key may appear once");
    }
    return true;
  };
  cmd_Json command;
  try {
    command = cmd_Json::parse(line.begin(), line.end(), callback);
  } catch (const cmd_Json::parse_error& e) {
    cmd_Refuse(std::string("The command is not valid JSON: ") + e.what());
  } catch (const cmd_Json::out_of_range& e) {
    // The parser refuses here a number beyond the range of a double (1e400).
    cmd_Refuse(std::string("The command holds a number beyond the range of a double: ") + e.what());
  }
  cmd_CheckCommand(command);
  return command;
}

void cmd_CheckCommand(const cmd_Json& command) {
  // Iterative, so that a deep value built by a caller is refused rather than followed; children
  // are stacked last first, so that the first offending string in document order is reported.
  std::vector<std::pair<const cmd_Json*, std::size_t>> todo{{&command, 0}};
  while (!todo.empty()) {
    auto [v, depth] = todo.back();
    todo.pop_back();
    if (v->is_string()) {
      CheckString(v->get_ref<const std::string&>(), "string");
      continue;
    }
    if (!v->is_structured()) continue;
    if (depth + 1 > cmd_kMaxDepth) cmd_Refuse(TooDeep());
    if (v->is_object())
      for (auto it = v->begin(); it != v->end(); ++it) CheckString(it.key(), "key");
    const std::size_t mark = todo.size();
    for (auto it = v->begin(); it != v->end(); ++it) todo.emplace_back(&*it, depth + 1);
    std::reverse(todo.begin() + static_cast<std::ptrdiff_t>(mark), todo.end());
  }
}
