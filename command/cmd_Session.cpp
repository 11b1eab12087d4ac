#include "command/cmd_Session.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/base/QMXBasException.h"
#include "platform/persist/cls_Record.h"
#include "command/cmd_Advice.h"
#include "command/cmd_AdviceJson.h"
#include "command/cmd_Check.h"
#include "command/cmd_Line.h"
#include "command/cmd_Path.h"
#include "dbfile/dbf_AtomicFile.h"
#include "dbfile/dbf_File.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_MapOfCowsRepository.h"
#include "platform/model/mdl_Repository.h"
#include "platform/model/omu_ChangeHistory.h"

namespace {

// A validation failure of an object below the validated node: reported with its own path.
struct ValidationFailure {
  std::vector<cmd_Failure> failures;  // at least one; first failure first
  std::vector<cmd_Warning> warnings;
};

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
  };
  return kOps;
}

std::string Join(const std::vector<const char*>& words) {
  std::string out;
  for (const char* w : words) out += (out.empty() ? "" : ", ") + std::string(w);
  return out;
}

cmd_Path PathOf(const cmd_Json& command) {
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

std::optional<std::string> TypeOf(const cmd_Json& command) {
  if (!command.contains("type")) return std::nullopt;
  const cmd_Json& t = command["type"];
  if (!t.is_string()) cmd_Refuse("The \"type\" must be a constructor name, not " + t.dump());
  return t.get<std::string>();
}

std::string FileOf(const cmd_Json& command) {
  if (!command.contains("file") || !command["file"].is_string() || command["file"].get<std::string>().empty())
    cmd_Refuse("The command needs a \"file\": the path of a database file");
  return command["file"].get<std::string>();
}

const cls_ScriptField& MemberOf(const cmd_Node& n, const cow_String& name) {
  const cls_ScriptField* f = n.md->FindScriptField(name.view());
  if (!f) cmd_Refuse(cmd_ClassLabel(*n.md) + " has no member \"" + name.str() + "\"");
  return *f;
}

std::string MemberText(const cls_ScriptField& f, const cls_ClassMetadata& owner) {
  return "the member \"" + std::string(f.scriptName) + "\" of " + cmd_ClassLabel(owner);
}

// A new object for a member slot: of the named constructor, or of the member's declared class.
cls_RecordPtr NewRecord(const cls_ScriptField& f, const cls_ClassMetadata& owner, const std::optional<std::string>& type,
                        const cmd_Json* values) {
  if (!f.declared) cmd_Refuse("The class of " + MemberText(f, owner) + " is not registered");
  const cls_ClassMetadata& cls = type ? cmd_ClassForConstructor(*type, *f.declared) : *f.declared;
  cmd_OwnedObject obj = cmd_NewObject(cls, values);
  return cmd_RecordOf(cls, obj.get());
}

// The position a step names in a list of objects; `end` admits the position after the last.
std::size_t ListPosition(const cmd_Node& list, const cow_String& step, std::size_t size, bool end) {
  auto i = mdl_ParseIntegerKey(step.view());
  const std::size_t limit = end ? size + 1 : size;
  if (!i || *i < 0 || static_cast<std::size_t>(*i) >= limit)
    cmd_Refuse("The list \"" + std::string(list.field->scriptName) + "\" of " + cmd_ClassLabel(*list.ownerMd) +
               " holds " + std::to_string(size) + " elements; " + (end ? "a new one can go at 0 to " : "there is no element ") +
               (end ? std::to_string(size) + ", not " + step.str() : step.str()));
  return static_cast<std::size_t>(*i);
}

std::vector<cls_RecordPtr> ListOf(const cmd_Node& list) {
  return std::get<std::vector<cls_RecordPtr>>(list.field->get(list.owner));
}

bool IsObjectList(const cmd_Node& n) { return n.kind == cmd_Node::kMember && n.field->type == cls_AttrObjectList; }

// What a failed command must put back. A command changes at most one element of a model's
// repository: it inserts or removes it, or changes something inside it (nested containers and
// lists included). Keeping a copy of that element (or its absence) before the command runs and
// putting it back on failure undoes the command at the cost of one element, where a copy of the
// database would separate a whole repository on the first change. Models are made and removed
// by single steps that cannot fail halfway, and open replaces the database only when it succeeds.
class SlotGuard {
 public:
  static std::optional<SlotGuard> For(const ddr_Database& db, const cmd_Json& command) {
    if (!command.is_object() || !command.contains("op")) return std::nullopt;
    const cmd_Json& op = command["op"];
    if (op != "create" && op != "set" && op != "delete") return std::nullopt;
    cmd_Path path;
    try {
      path = PathOf(command);
    } catch (const QMXBasException&) {
      return std::nullopt;  // the command fails before it changes anything
    }
    const ddr_Model* model = path.size() < 2 ? nullptr : db.FindModel(path[0]);
    if (model && model->FindObject(path[1].view())) {  // one object as an extension: keep all of it
      SlotGuard g(path[0], path[1], cow_String(), 0);
      g.extension_ = *model->FindExtension(path[1].view());
      return g;
    }
    if (path.size() < 3) return std::nullopt;
    const mdl_Repository* repo = model ? model->FindRepository(path[1].view()) : nullptr;
    if (!repo) return std::nullopt;
    SlotGuard g(path[0], path[1], path[2], repo->Count());
    const cls_ClassMetadata* cls = nullptr;
    if (const void* e = repo->Find(path[2], &cls)) g.saved_ = cmd_OwnedObject(cls->Clone(e), cmd_ObjectDeleter{cls});
    return g;
  }

  void Restore(ddr_Database& db) {
    ddr_Model* model = db.ModifyModel(model_);
    if (model && extension_) return model->ReplaceExtension(*extension_);
    mdl_Repository* repo = model ? model->ModifyRepository(repo_.view()) : nullptr;
    if (!repo) return;
    if (repo->Positional()) {
      const std::size_t now = repo->Count();
      if (now > count_) {  // the command inserted an element at the key
        repo->RemoveKey(key_);
        return;
      }
      if (now < count_) {  // the command removed the element at the key
        repo->InsertNew(key_, saved_.release());
        return;
      }
    }
    if (repo->Contains(key_)) repo->RemoveKey(key_);
    if (saved_) repo->InsertNew(key_, saved_.release());
  }

 private:
  SlotGuard(cow_String model, cow_String repo, cow_String key, std::size_t count)
      : model_(std::move(model)), repo_(std::move(repo)), key_(std::move(key)), count_(count),
        saved_(nullptr, cmd_ObjectDeleter{nullptr}) {}
  cow_String model_, repo_, key_;
  std::size_t count_;
  cmd_OwnedObject saved_;
  std::optional<ddr_Model::ExtensionHandle> extension_;
};

cmd_Json ErrorOf(const std::string& kind, const std::string& message, const std::string& file, int line) {
  cmd_Json e = cmd_Json::object();
  e["kind"] = kind;
  e["message"] = message;
  e["file"] = file;
  e["line"] = line;
  return e;
}

cmd_Json PathJson(const cmd_Path& path) {
  cmd_Json a = cmd_Json::array();
  for (const auto& step : path) a.push_back(step.str());
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

}  // namespace

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
  std::optional<SlotGuard> guard;
  std::optional<cmd_Path> path;  // the command's path, for errors
  cmd_Json error;
  try {
    cmd_CheckCommand(command);
    if (command.is_object() && command.contains("path")) {
      try {
        path = PathOf(command);
      } catch (const QMXBasException&) {
        // the command is refused below, with its own message
      }
    }
    guard = SlotGuard::For(db_, command);
    cmd_Json result = Dispatch(command);
    ++succeeded_;
    cmd_Json r = Answer(number, true);
    r["result"] = std::move(result);
    return r;
  } catch (const ValidationFailure& v) {
    const cmd_Failure& first = v.failures.front();
    error = ErrorOf(first.kind, first.message, first.file, first.line);
    error["path"] = PathJson(first.path);
    error["failures"] = cmd_Json::array();
    for (const auto& f : v.failures) {
      cmd_Json one = ErrorOf(f.kind, f.message, f.file, f.line);
      one["path"] = PathJson(f.path);
      error["failures"].push_back(std::move(one));
    }
    if (!v.warnings.empty()) error["warnings"] = cmd_WarningsJson(v.warnings);
  } catch (const cmd_MemberError& e) {
    error = ErrorOf(e.kind, e.message, e.file, e.line);
    // The path of the object whose member failed: the command's path (less the member itself when
    // "value" sets one member), then the members leading to it.
    cmd_Path at = path.value_or(cmd_Path());
    if (!at.empty() && command.contains("value")) at.pop_back();
    for (std::size_t i = 0; i + 1 < e.members.size(); ++i) at.emplace_back(e.members[i]);
    error["path"] = PathJson(at);
    if (!e.members.empty()) error["member"] = e.members.back();
  } catch (const QMXBasException& e) {
    error = ErrorOf(e.Kind(), e.Message(), e.File(), e.Line());
  } catch (const cmd_Json::exception& e) {
    error = ErrorOf("CmdException", std::string("The command is malformed: ") + e.what(), "cmd_Session.cpp", __LINE__);
  } catch (const std::exception& e) {
    error = ErrorOf("Error", e.what(), "", 0);
  }
  if (path && !error.contains("path")) error["path"] = PathJson(*path);
  if (guard) guard->Restore(db_);
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
  return Open(command);
}

cmd_Json cmd_Session::Create(const cmd_Json& command) {
  const cmd_Path path = PathOf(command);
  if (path.empty()) cmd_Refuse("create needs a path to where the new object goes");
  const std::optional<std::string> type = TypeOf(command);
  const cmd_Json* values = command.contains("values") ? &command["values"] : nullptr;
  const cow_String& last = path.back();
  if (path.size() == 1) {
    if (type && *type != "Model") cmd_Refuse("A path of one step names a model; its type is \"Model\", not \"" + *type + "\"");
    if (values) cmd_Refuse("A model takes no values");
    db_.CreateModel(last);
    return nullptr;
  }
  cmd_Walk(db_, path, path.size() - 1, true, [&](cmd_Node& parent) {
    if (parent.kind == cmd_Node::kRepository) {
      if (!parent.repo->Positional() && parent.repo->Contains(last))
        cmd_Refuse(std::string(parent.repo->RepositoryName()) + " already holds \"" + last.str() + "\"");
      if (!type)
        cmd_Refuse("A new element of " + std::string(parent.repo->RepositoryName()) + " needs a \"type\": " +
                   cmd_ConstructorNames(parent.repo->ElementClass()));
      const cls_ClassMetadata& cls = cmd_ClassForConstructor(*type, parent.repo->ElementClass());
      cmd_OwnedObject obj = cmd_NewObject(cls, values);
      parent.repo->InsertNew(last, obj.release());
    } else if (parent.kind == cmd_Node::kObject) {
      const cls_ScriptField& f = MemberOf(parent, last);
      if (f.type != cls_AttrObject)
        cmd_Refuse("Only an object can be created; " + MemberText(f, *parent.md) + " holds a value (" +
                   cls_AttrTypeName(f.type) + "): set it");
      if (f.child(parent.obj))
        cmd_Refuse(MemberText(f, *parent.md) + " is already set; set it with a \"type\" to replace it");
      f.set(parent.obj, NewRecord(f, *parent.md, type, values));
    } else if (IsObjectList(parent)) {
      std::vector<cls_RecordPtr> list = ListOf(parent);
      const std::size_t at = ListPosition(parent, last, list.size(), true);
      list.insert(list.begin() + static_cast<std::ptrdiff_t>(at), NewRecord(*parent.field, *parent.ownerMd, type, values));
      parent.field->set(parent.owner, list);
    } else if (parent.kind == cmd_Node::kModel) {
      cmd_Refuse("The repositories of a model come with it; \"" + last.str() + "\" cannot be created");
    } else {
      cmd_Refuse("Nothing can be created at " + cmd_PathText(path));
    }
  });
  return nullptr;
}

cmd_Json cmd_Session::Set(const cmd_Json& command) {
  const cmd_Path path = PathOf(command);
  const std::optional<std::string> type = TypeOf(command);
  const bool hasValue = command.contains("value");
  const cmd_Json* values = command.contains("values") ? &command["values"] : nullptr;
  if (hasValue && (values || type)) cmd_Refuse("set takes either \"value\" or \"values\" (with or without \"type\"), not both");
  if (!hasValue && !values && !type) cmd_Refuse("set needs \"value\", \"values\" or \"type\"");
  if (path.size() < 2) cmd_Refuse("set needs a path to an object or a member, not " + cmd_PathText(path));

  if (type) {  // a new object of that type replaces whatever the last step names
    const cow_String& last = path.back();
    cmd_Walk(db_, path, path.size() - 1, true, [&](cmd_Node& parent) {
      if (parent.kind == cmd_Node::kRepository) {
        const cls_ClassMetadata& cls = cmd_ClassForConstructor(*type, parent.repo->ElementClass());
        cmd_OwnedObject obj = cmd_NewObject(cls, values);
        if (parent.repo->Contains(last)) parent.repo->RemoveKey(last);
        parent.repo->InsertNew(last, obj.release());
      } else if (parent.kind == cmd_Node::kObject) {
        const cls_ScriptField& f = MemberOf(parent, last);
        if (f.type != cls_AttrObject)
          cmd_Refuse("A \"type\" makes a new object; " + MemberText(f, *parent.md) + " holds a value (" +
                     cls_AttrTypeName(f.type) + ")");
        f.set(parent.obj, NewRecord(f, *parent.md, type, values));
      } else if (IsObjectList(parent)) {
        std::vector<cls_RecordPtr> list = ListOf(parent);
        list[ListPosition(parent, last, list.size(), false)] = NewRecord(*parent.field, *parent.ownerMd, type, values);
        parent.field->set(parent.owner, list);
      } else {
        cmd_Refuse("A new object cannot be put at " + cmd_PathText(path));
      }
    });
    return nullptr;
  }

  cmd_Walk(db_, path, path.size(), true, [&](cmd_Node& node) {
    if (hasValue) {
      if (!node.field)
        cmd_Refuse("\"value\" sets one member; " + cmd_PathText(path) + " names no member of an object: use \"values\"");
      cmd_WithinMember(node.field->scriptName, [&] {
        node.field->set(node.owner, cmd_ValueFromJson(*node.ownerMd, *node.field, command["value"]));
      });
    } else {
      if (node.kind != cmd_Node::kObject)
        cmd_Refuse("\"values\" sets members of an object; " + cmd_PathText(path) + " names no object: use \"value\"");
      cmd_SetValues(node.obj, *node.md, *values);
    }
  });
  return nullptr;
}

cmd_Json cmd_Session::Get(const cmd_Json& command) {
  cmd_Json out;
  cmd_WalkConst(db_, PathOf(command), [&](const cmd_Node& n) {
    switch (n.kind) {
      case cmd_Node::kDatabase: out = cmd_DatabaseToJson(*n.db); break;
      case cmd_Node::kModel: out = cmd_ModelToJson(*n.model); break;
      case cmd_Node::kRepository: out = cmd_RepositoryToJson(*n.repo); break;
      case cmd_Node::kObject: out = cmd_ObjectToJson(n.obj, *n.md); break;
      case cmd_Node::kMember: out = cmd_MemberToJson(n.owner, *n.field); break;
    }
  });
  return out;
}

cmd_Json cmd_Session::List(const cmd_Json& command) {
  const cmd_Path path = PathOf(command);
  cmd_Json out = cmd_Json::array();
  cmd_WalkConst(db_, path, [&](const cmd_Node& n) {
    switch (n.kind) {
      case cmd_Node::kDatabase:
        for (const auto& name : n.db->ModelNames()) out.push_back(name.str());
        break;
      case cmd_Node::kModel:
        for (const auto& name : n.model->RepositoryNames()) out.push_back(name.str());
        for (const auto& name : n.model->ObjectNames()) out.push_back(name.str());
        break;
      case cmd_Node::kRepository:
        for (const auto& key : n.repo->Keys()) out.push_back(key.str());
        break;
      case cmd_Node::kObject:
        for (const auto& f : n.md->ScriptFields()) out.push_back(f.scriptName);
        break;
      case cmd_Node::kMember:
        if (!IsObjectList(n)) cmd_Refuse(MemberText(*n.field, *n.ownerMd) + " holds a value; get it instead");
        for (std::size_t i = 0; i < ListOf(n).size(); ++i) out.push_back(std::to_string(i));
        break;
    }
  });
  return out;
}

cmd_Json cmd_Session::Delete(const cmd_Json& command) {
  const cmd_Path path = PathOf(command);
  if (path.empty()) cmd_Refuse("delete needs a path to what it removes");
  const cow_String& last = path.back();
  if (path.size() == 1) {
    if (!db_.RemoveModel(last)) cmd_Refuse("There is no model \"" + last.str() + "\"");
    return nullptr;
  }
  cmd_Walk(db_, path, path.size() - 1, true, [&](cmd_Node& parent) {
    if (parent.kind == cmd_Node::kRepository) {
      if (!parent.repo->RemoveKey(last))
        cmd_Refuse("There is no \"" + last.str() + "\" in " + parent.repo->RepositoryName());
    } else if (parent.kind == cmd_Node::kObject) {
      const cls_ScriptField& f = MemberOf(parent, last);
      if (f.type == cls_AttrObjectList) {
        f.set(parent.obj, std::vector<cls_RecordPtr>());
      } else if (f.type != cls_AttrObject) {
        cmd_Refuse(MemberText(f, *parent.md) + " holds a value (" + cls_AttrTypeName(f.type) +
                   "); set it instead of deleting it");
      } else if (!f.optional) {
        cmd_Refuse(MemberText(f, *parent.md) + " always holds an object; it cannot be deleted");
      } else if (!f.child(parent.obj)) {
        cmd_Refuse(MemberText(f, *parent.md) + " is already empty");
      } else {
        f.set(parent.obj, std::monostate{});
      }
    } else if (IsObjectList(parent)) {
      std::vector<cls_RecordPtr> list = ListOf(parent);
      list.erase(list.begin() + static_cast<std::ptrdiff_t>(ListPosition(parent, last, list.size(), false)));
      parent.field->set(parent.owner, list);
    } else if (parent.kind == cmd_Node::kModel) {
      cmd_Refuse("The repositories of a model come with it; \"" + last.str() + "\" cannot be deleted");
    } else {
      cmd_Refuse("Nothing can be deleted at " + cmd_PathText(path));
    }
  });
  return nullptr;
}

cmd_Json cmd_Session::Validate(const cmd_Json& command) {
  const cmd_Path path = PathOf(command);
  cmd_Checker checker;
  cmd_WalkConst(db_, path, [&](const cmd_Node& n) { checker.CheckNode(n, path); });
  // Advice beside validation: it changes no verdict, failures or not.
  cmd_Adviser adviser;
  adviser.AdvisePath(db_, path);
  if (!checker.Failures().empty()) throw ValidationFailure{checker.Failures(), adviser.Warnings()};
  cmd_Json r = cmd_Json::object();
  r["validated"] = checker.Checked();
  if (!adviser.Warnings().empty()) r["warnings"] = cmd_WarningsJson(adviser.Warnings());  // none: no key
  return r;
}

cmd_Json cmd_Session::Save(const cmd_Json& command) {
  const std::string file = FileOf(command);
  dbf_SaveOptions options;
  options.seen = &seen_;
  if (command.contains("overwrite")) {
    if (!command["overwrite"].is_boolean()) cmd_Refuse("The \"overwrite\" of a save is true or false");
    options.overwrite = command["overwrite"].get<bool>();
  }
  dbf_Save(db_, file, options);
  cmd_Json r = cmd_Json::object();
  r["file"] = file;
  r["models"] = db_.GetModels().size();
  // A symbolic link stays; the file it leads to was replaced.
  if (const std::string target = dbf_SaveTarget(file); target != file) r["target"] = target;
  return r;
}

cmd_Json cmd_Session::Open(const cmd_Json& command) {
  const std::string file = FileOf(command);
  dbf_Seen seen;  // the file as it was before it was read; the database read none other
  seen.Opened(file);
  db_ = dbf_Open(file);
  seen_ = std::move(seen);
  cmd_Json r = cmd_Json::object();
  r["file"] = file;
  r["models"] = cmd_Json::array();
  for (const auto& name : db_.ModelNames()) r["models"].push_back(name.str());
  return r;
}
