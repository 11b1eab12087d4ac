#include "command/cmd_Line.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <type_traits>
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

// Builds the parsed value from the parser's events, as the library's own builder does, and refuses a
// key given twice in one object when it is read. Events rather than the parser's callback: the
// callback copies every key and value once more, and the parse was a fifth of a command's cost.
class Builder {
 public:
  explicit Builder(cmd_Json& root) : root_(root) {}
  bool null() { Put(nullptr); return true; }
  bool boolean(bool v) { Put(v); return true; }
  bool number_integer(cmd_Json::number_integer_t v) { Put(v); return true; }
  bool number_unsigned(cmd_Json::number_unsigned_t v) { Put(v); return true; }
  bool number_float(cmd_Json::number_float_t v, const cmd_Json::string_t&) { Put(v); return true; }
  bool string(cmd_Json::string_t& v) { Put(std::move(v)); return true; }
  bool binary(cmd_Json::binary_t& v) { Put(cmd_Json::binary(std::move(v))); return true; }
  bool start_object(std::size_t) { open_.push_back(Put(cmd_Json::value_t::object)); return true; }
  bool key(cmd_Json::string_t& k) {
    auto& object = open_.back()->get_ref<cmd_Json::object_t&>();
    auto [at, added] = object.emplace(k, nullptr);
    if (!added) cmd_Refuse("The command gives the key " + cmd_Json(k).dump() + " twice in one object; a key may appear once");
    member_ = &at->second;
    return true;
  }
  bool end_object() { open_.pop_back(); return true; }
  bool start_array(std::size_t) { open_.push_back(Put(cmd_Json::value_t::array)); return true; }
  bool end_array() { open_.pop_back(); return true; }
  // The parser's own error (a syntax error, or a number beyond the range of a double), kept to be
  // refused once the parser has returned rather than thrown through it.
  template <class Exception>
  bool parse_error(std::size_t, const std::string&, const Exception& e) {
    if constexpr (std::is_same_v<Exception, cmd_Json::out_of_range>)
      error_ = std::string("The command holds a number beyond the range of a double: ") + e.what();
    else
      error_ = std::string("The command is not valid JSON: ") + e.what();
    return false;
  }
  const std::string& Error() const { return error_; }

 private:
  template <class V>
  cmd_Json* Put(V&& v) {
    if (open_.empty()) {
      root_ = cmd_Json(std::forward<V>(v));
      return &root_;
    }
    if (cmd_Json& in = *open_.back(); in.is_array()) {
      auto& array = in.get_ref<cmd_Json::array_t&>();
      array.emplace_back(std::forward<V>(v));
      return &array.back();
    }
    *member_ = cmd_Json(std::forward<V>(v));
    return member_;
  }
  cmd_Json& root_;
  std::vector<cmd_Json*> open_;  // the arrays and objects being filled, innermost last
  cmd_Json* member_ = nullptr;   // where the value after an object's key goes
  std::string error_;
};

}  // namespace

cmd_Json cmd_ParseCommand(std::string_view line) {
  if (auto at = dbf_InvalidUtf8At(line))
    cmd_Refuse("The command is not valid UTF-8: the byte " + Hex(line[*at]) + " at " + Column(*at) +
               " does not belong to a UTF-8 character");
  CheckDepth(line);
  cmd_Json command;
  Builder builder(command);
  if (!cmd_Json::sax_parse(line.begin(), line.end(), &builder)) cmd_Refuse(builder.Error());
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
