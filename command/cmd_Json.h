#pragma once
// Values of the command layer as JSON (nlohmann-json, keys kept in the order given): members by
// scripting name, enumerations as their literal text, tables as arrays of rows, lists as arrays,
// regions as strings, objects as JSON objects keyed by scripting names with their scripting
// constructor under "type" ("$type" in a class that has a member named "type"; "$type" is
// accepted on input everywhere).
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_Value.h"

class ddr_Database;
class ddr_Model;
class mdl_Repository;

using cmd_Json = nlohmann::ordered_json;

// --- JSON to values ------------------------------------------------------------------------------

// A failure while setting members from JSON, carrying the failure as the system raised it (kind,
// message, source file and line) and the members that lead to it: the scripting names of nested
// members, keys of inline containers and positions in lists, from the object the values were
// given for down to the member that failed (the last).
struct cmd_MemberError {
  std::vector<std::string> members;
  std::string kind;
  std::string message;
  std::string file;
  int line = 0;
  std::vector<std::string> candidates;  // for an unknown member: the members there are
};

// Runs fn; a failure inside it becomes (or stays) a cmd_MemberError with `member` in front.
void cmd_WithinMember(const std::string& member, const std::function<void()>& fn);

// The value a member takes from JSON; a JSON value of the wrong kind is refused with a
// nex_CmdException naming the member and what it takes. Enumeration literals are passed on as
// text (or integers) for the member's own set to check.
cls_Value cmd_ValueFromJson(const cls_ClassMetadata& owner, const cls_ScriptField& field, const cmd_Json& v);

// Sets members of an existing object from a JSON object keyed by scripting names, in the order
// given. A constructor key ("type"/"$type") is accepted only when it names the object's own class;
// a read-only member is refused (it is given only where an object is made: cmd_NewObject).
void cmd_SetValues(void* obj, const cls_ClassMetadata& md, const cmd_Json& values);

// Refuses a change of a read-only member of an existing object.
[[noreturn]] void cmd_RefuseReadOnly(const cls_ScriptField& field, const cls_ClassMetadata& owner);

// The class a scripting constructor name stands for, which must be `declared` or one of its kinds
// and constructible.
const cls_ClassMetadata& cmd_ClassForConstructor(const std::string& scriptName, const cls_ClassMetadata& declared);

// The scripting constructors that make a `declared` (it and its kinds), in registration order,
// separated by ", ".
std::string cmd_ConstructorNames(const cls_ClassMetadata& declared);

// A new object (owned by the caller; release it through md.Destroy) of class md, with defaults and
// then the given values.
struct cmd_ObjectDeleter {
  const cls_ClassMetadata* md;
  void operator()(void* p) const { md->Destroy(p); }
};
using cmd_OwnedObject = std::unique_ptr<void, cmd_ObjectDeleter>;
cmd_OwnedObject cmd_NewObject(const cls_ClassMetadata& md, const cmd_Json* values);

// The record of an object written by its class.
cls_RecordPtr cmd_RecordOf(const cls_ClassMetadata& md, const void* obj);

// A class without a constructor of its own whose first member is a table (a material option's data
// table) is scripted by that table alone: an array of rows given for it fills the table, and it is
// shown as its table whenever its other members hold their defaults. Returns that first member, or
// null for every other class.
const cls_ScriptField* cmd_TableShorthand(const cls_ClassMetadata& md);

// --- values to JSON ------------------------------------------------------------------------------

cmd_Json cmd_ValueToJson(const cls_Value& v);
cmd_Json cmd_ObjectToJson(const void* obj, const cls_ClassMetadata& md);
cmd_Json cmd_MemberToJson(const void* owner, const cls_ScriptField& field);
cmd_Json cmd_RepositoryToJson(const mdl_Repository& repo);
cmd_Json cmd_ModelToJson(const ddr_Model& model);
cmd_Json cmd_DatabaseToJson(const ddr_Database& db);
