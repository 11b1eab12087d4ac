#include "command/cmd_Session.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_AdviceJson.h"
#include "command/cmd_FailureJson.h"
#include "command/cmd_Line.h"
#include "command/cmd_SessionSupport.h"
#include "platform/base/QMXBasException.h"
#include "platform/model/omu_ChangeHistory.h"

namespace {

struct OpKeys {
  const char* op;
  std::vector<const char*> keys;
};

const std::vector<OpKeys>& Ops() {
  static const std::vector<OpKeys> kOps = {
      {"create", {"op", "path", "type", "values"}},
      {"set", {"op", "path", "type", "values", "value"}},
      {"get", {"op", "path"}},
      {"list", {"op", "path"}},
      {"delete", {"op", "path"}},
      {"validate", {"op", "path"}},
      {"save", {"op", "file", "overwrite"}},
      {"open", {"op", "file"}},
      {"undo", {"op"}},
      {"redo", {"op"}},
      {"begin", {"op"}},
      {"commit", {"op"}},
      {"rollback", {"op"}},
      {"transaction", {"op", "commands"}},
  };
  return kOps;
}

// The ops that change the database, and so leave an entry in the history when they succeed.
bool Changes(const std::string& op) { return op == "create" || op == "set" || op == "delete" || op == "open"; }

std::string Join(const std::vector<const char*>& words) {
  std::string out;
  for (const char* w : words) out += (out.empty() ? "" : ", ") + std::string(w);
  return out;
}

cmd_Json ErrorOf(const std::string& kind, const std::string& message, const std::string& file, int line) {
  cmd_Json e = cmd_Json::object();
  e["kind"] = kind;
  e["message"] = message;
  e["file"] = file;
  e["line"] = line;
  return e;
}

cmd_Json Texts(const std::vector<std::string>& names) {
  cmd_Json a = cmd_Json::array();
  for (const auto& n : names) a.push_back(n);
  return a;
}

// The answer to one command: the script line first when there is one, so that a reader of the
// results finds the line without counting.
cmd_Json Answer(std::size_t line, bool ok) {
  cmd_Json r = cmd_Json::object();
  if (line) r["line"] = line;
  r["ok"] = ok;
  return r;
}

std::string OpOf(const cmd_Json& command) {
  if (!command.is_object() || !command.contains("op") || !command["op"].is_string()) return "";
  return command["op"].get<std::string>();
}

}  // namespace

cmd_Path cmd_PathOf(const cmd_Json& command) {
  if (!command.contains("path")) cmd_Refuse("The command has no \"path\"");
  const cmd_Json& p = command["path"];
  if (!p.is_array()) cmd_Refuse("The \"path\" must be an array of steps, not " + p.dump());
  cmd_Path path;
  for (const auto& step : p) {
    if (step.is_string()) path.emplace_back(step.get<std::string>());
    else if (step.is_number_integer()) path.emplace_back(step.dump());
    else cmd_Refuse("A step of a path is a name or a position, not " + step.dump());
  }
  return path;
}

std::optional<std::string> cmd_TypeOf(const cmd_Json& command) {
  if (!command.contains("type")) return std::nullopt;
  const cmd_Json& t = command["type"];
  if (!t.is_string()) cmd_Refuse("The \"type\" must be a constructor name, not " + t.dump());
  return t.get<std::string>();
}

std::string cmd_FileOf(const cmd_Json& command) {
  if (!command.contains("file") || !command["file"].is_string() || command["file"].get<std::string>().empty())
    cmd_Refuse("The command needs a \"file\": the path of a database file");
  return command["file"].get<std::string>();
}

cmd_Json cmd_PathJson(const cmd_Path& path) {
  cmd_Json a = cmd_Json::array();
  for (const auto& step : path) a.push_back(step.str());
  return a;
}

std::string cmd_MemberText(const cls_ScriptField& f, const cls_ClassMetadata& owner) {
  return "the member \"" + std::string(f.scriptName) + "\" of " + cmd_ClassLabel(owner);
}

cmd_Json cmd_Session::ExecuteLine(std::string_view line, std::size_t number) {
  cmd_Json command;
  try {
    command = cmd_ParseCommand(line);
  } catch (const QMXBasException& e) {
    ++failed_;
    cmd_Json r = Answer(number, false);
    r["error"] = ErrorOf(e.Kind(), e.Message(), e.File(), e.Line());
    return r;
  } catch (const std::exception& e) {  // nothing about one line may end a run
    ++failed_;
    cmd_Json r = Answer(number, false);
    r["error"] = ErrorOf("Error", e.what(), "", 0);
    return r;
  }
  return Execute(command, number);
}

cmd_Json cmd_Session::Execute(const cmd_Json& command, std::size_t number) {
  const std::size_t history = omu_ChangeHistory::Instance().Size();
  // The database as it was: a copy shares every model, and a change separates only what it
  // touches, so a failed command is undone by putting this back.
  const ddr_Database before = db_;
  std::optional<cmd_Path> path;  // the command's path, for errors
  cmd_Json error;
  try {
    cmd_CheckCommand(command);
    if (command.is_object() && command.contains("path")) {
      try {
        path = cmd_PathOf(command);
      } catch (const QMXBasException&) {
        // the command is refused below, with its own message
      }
    }
    cmd_Json result = Dispatch(command);
    if (Changes(OpOf(command)) && !transaction_) {
      undo_.push_back(before);
      redo_.clear();
    }
    ++succeeded_;
    cmd_Json r = Answer(number, true);
    r["result"] = std::move(result);
    return r;
  } catch (const cmd_TransactionFailure& t) {
    error = t.error;
  } catch (const cmd_ValidationFailure& v) {
    error = cmd_FailuresJson(v.failures);
    if (!v.warnings.empty()) error["warnings"] = cmd_WarningsJson(v.warnings);
  } catch (const cmd_MemberError& e) {
    error = ErrorOf(e.kind, e.message, e.file, e.line);
    // The path of the object whose member failed: the command's path (less the member itself when
    // "value" sets one member), then the members leading to it.
    cmd_Path at = path.value_or(cmd_Path());
    if (!at.empty() && command.contains("value")) at.pop_back();
    for (std::size_t i = 0; i + 1 < e.members.size(); ++i) at.emplace_back(e.members[i]);
    error["path"] = cmd_PathJson(at);
    if (!e.members.empty()) error["member"] = e.members.back();
    if (!e.candidates.empty()) error["candidates"] = Texts(e.candidates);
  } catch (const cmd_StepError& e) {
    error = ErrorOf(e.Kind(), e.Message(), e.File(), e.Line());
    error["path"] = cmd_PathJson(e.At());
    error["member"] = e.Step();
    error["candidates"] = Texts(e.Candidates());
  } catch (const QMXBasException& e) {
    error = ErrorOf(e.Kind(), e.Message(), e.File(), e.Line());
  } catch (const cmd_Json::exception& e) {
    error = ErrorOf("CmdException", std::string("The command is malformed: ") + e.what(), "cmd_Session.cpp", __LINE__);
  } catch (const std::exception& e) {
    error = ErrorOf("Error", e.what(), "", 0);
  }
  if (path && !error.contains("path")) error["path"] = cmd_PathJson(*path);
  db_ = before;
  if (transaction_ && OpOf(command) != "transaction") {
    // All or nothing: a failed command ends the transaction it ran in, undoing every command of it.
    db_ = *transaction_;
    transaction_.reset();
    error["rolledBack"] = true;
  }
  omu_ChangeHistory::Instance().Truncate(history);
  ++failed_;
  cmd_Json r = Answer(number, false);
  r["error"] = std::move(error);
  return r;
}

cmd_Json cmd_Session::Dispatch(const cmd_Json& command) {
  if (!command.is_object()) cmd_Refuse("A command is a JSON object, not " + command.dump());
  if (!command.contains("op") || !command["op"].is_string()) cmd_Refuse("The command has no \"op\"");
  const std::string op = command["op"].get<std::string>();
  auto entry = std::find_if(Ops().begin(), Ops().end(), [&](const OpKeys& s) { return op == s.op; });
  if (entry == Ops().end()) {
    std::vector<const char*> names;
    for (const auto& s : Ops()) names.push_back(s.op);
    cmd_Refuse("Unknown op \"" + op + "\"; the ops are " + Join(names));
  }
  for (const auto& item : command.items()) {
    const std::string& key = item.key();
    if (std::none_of(entry->keys.begin(), entry->keys.end(), [&](const char* k) { return key == k; }))
      cmd_Refuse("The command \"" + op + "\" takes no \"" + key + "\"; it takes " + Join(entry->keys));
  }
  if (op == "create") return Create(command);
  if (op == "set") return Set(command);
  if (op == "get") return Get(command);
  if (op == "list") return List(command);
  if (op == "delete") return Delete(command);
  if (op == "validate") return Validate(command);
  if (op == "save") return Save(command);
  if (op == "open") return Open(command);
  if (op == "undo" || op == "redo") return Step(op == "undo");
  if (op == "transaction") return Transaction(command);
  return Bracket(op);
}
