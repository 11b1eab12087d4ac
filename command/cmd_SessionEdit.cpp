// The session's ops that change objects: create, set and delete.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Session.h"
#include "command/cmd_SessionSupport.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_MapOfCowsRepository.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_Record.h"

namespace {

// The member the last step of `path` names in the object `parent` (reached by the other steps).
const cls_ScriptField& MemberOf(const cmd_Node& parent, const cmd_Path& path) {
  return cmd_FindMember(parent.obj, *parent.md, path.back().view(), cmd_Path(path.begin(), path.end() - 1));
}

// A new object for a member slot: of the named constructor, or of the member's declared class.
cls_RecordPtr NewRecord(const cls_ScriptField& f, const cls_ClassMetadata& owner, const std::optional<std::string>& type,
                        const cmd_Json* values) {
  if (!f.declared) cmd_Refuse("The class of " + cmd_MemberText(f, owner) + " is not registered");
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

}  // namespace

cmd_Json cmd_Session::Create(const cmd_Json& command) {
  const cmd_Path path = cmd_PathOf(command);
  if (path.empty()) cmd_Refuse("create needs a path to where the new object goes");
  const std::optional<std::string> type = cmd_TypeOf(command);
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
      const cls_ScriptField& f = MemberOf(parent, path);
      if (f.type != cls_AttrObject)
        cmd_Refuse("Only an object can be created; " + cmd_MemberText(f, *parent.md) + " holds a value (" +
                   cls_AttrTypeName(f.type) + "): set it");
      if (f.child(parent.obj))
        cmd_Refuse(cmd_MemberText(f, *parent.md) + " is already set; set it with a \"type\" to replace it");
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
  const cmd_Path path = cmd_PathOf(command);
  const std::optional<std::string> type = cmd_TypeOf(command);
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
        const cls_ScriptField& f = MemberOf(parent, path);
        if (f.type != cls_AttrObject)
          cmd_Refuse("A \"type\" makes a new object; " + cmd_MemberText(f, *parent.md) + " holds a value (" +
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
        if (node.field->readOnly) cmd_RefuseReadOnly(*node.field, *node.ownerMd);
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

cmd_Json cmd_Session::Delete(const cmd_Json& command) {
  const cmd_Path path = cmd_PathOf(command);
  if (path.empty()) cmd_Refuse("delete needs a path to what it removes");
  const cow_String& last = path.back();
  if (path.size() == 1) {
    if (!db_.RemoveModel(last)) cmd_Refuse("There is no model \"" + last.str() + "\"");
    return nullptr;
  }
  cmd_Walk(db_, path, path.size() - 1, true, [&](cmd_Node& parent) {
    if (parent.kind == cmd_Node::kRepository) {
      if (!parent.repo->RemoveKey(last)) cmd_RefuseKey(*parent.repo, path);
    } else if (parent.kind == cmd_Node::kObject) {
      const cls_ScriptField& f = MemberOf(parent, path);
      if (f.type == cls_AttrObjectList) {
        f.set(parent.obj, std::vector<cls_RecordPtr>());
      } else if (f.type != cls_AttrObject) {
        cmd_Refuse(cmd_MemberText(f, *parent.md) + " holds a value (" + cls_AttrTypeName(f.type) +
                   "); set it instead of deleting it");
      } else if (!f.optional) {
        cmd_Refuse(cmd_MemberText(f, *parent.md) + " always holds an object; it cannot be deleted");
      } else if (!f.child(parent.obj)) {
        cmd_Refuse(cmd_MemberText(f, *parent.md) + " is already empty");
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

