#include "command/cmd_Schema.h"

#include <cstdint>
#include <exception>
#include <limits>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Json.h"
#include "command/cmd_Line.h"
#include "command/cmd_SchemaBuilder.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {

cmd_Json SchemaRef(const std::string& def) { return cmd_Json{{"$ref", "#/$defs/" + def}}; }

cmd_Json SchemaTyped(const char* type) { return cmd_Json{{"type", type}}; }

cmd_Json SchemaArrayOf(cmd_Json items) { return cmd_Json{{"type", "array"}, {"items", std::move(items)}}; }

cmd_Json SchemaInt32() {
  return cmd_Json{{"type", "integer"},
                  {"minimum", std::numeric_limits<std::int32_t>::min()},
                  {"maximum", std::numeric_limits<std::int32_t>::max()}};
}

}  // namespace

std::vector<const cls_ClassMetadata*> cmd_SchemaConstructors(const cls_ClassMetadata& declared) {
  std::vector<const cls_ClassMetadata*> out;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
    if (*md->ScriptName() && md->CanConstruct() && md->IsA(declared)) out.push_back(md);
  return out;
}

const cls_ClassMetadata* cmd_SchemaContainerElement(const cls_ClassMetadata& md) {
  if (!md.ScriptFields().empty() || *md.ScriptName() || !md.CanConstruct()) return nullptr;
  cmd_OwnedObject obj(md.NewDefault(), cmd_ObjectDeleter{&md});
  const mdl_Repository* repo = md.AsRepository(static_cast<const void*>(obj.get()));
  return repo ? &repo->ElementClass() : nullptr;
}

cmd_Json cmd_SchemaBuilder::Build() {
  defs_ = cmd_Json::object();
  defs_["path"] = cmd_Json{{"description", "Steps from the database down, in scripting names: a model name, a "
                                           "repository, a key, members, positions in lists"},
                           {"type", "array"},
                           {"items", cmd_Json{{"type", cmd_Json{"string", "integer"}}}}};
  defs_["file"] = cmd_Json{{"description", "A database file's name"}, {"type", "string"}, {"minLength", 1}};
  cmd_Json repositories = cmd_Json::object();
  ddr_Model model;  // holds every registered repository
  for (const auto& name : model.RepositoryNames()) {
    const cls_ClassMetadata& element = model.FindRepository(name.view())->ElementClass();
    cmd_Json names = cmd_Json::array();
    for (const cls_ClassMetadata* c : cmd_SchemaConstructors(element))
      for (const std::string& n : Names(*c)) names.push_back(n);
    repositories[name.str()] = names;
  }

  cmd_Json s = cmd_Json::object();
  s["$schema"] = "https://json-schema.org/draft/2020-12/schema";
  s["$id"] = "odbattr-command.schema.json";
  s["title"] = "One command of an odbattr script (one line of JSON Lines)";
  s["description"] = "A command names its op and the path it works on; what it gives must fit what stands at the path";
  s["type"] = "object";
  s["required"] = cmd_Json{"op"};
  cmd_Json ops = cmd_Json::array();
  ops.push_back(Op("create", "Make a new object at the path with the constructor \"type\" and set \"values\" on it",
                   {"path"}, {{"type", SchemaTyped("string")}, {"values", SchemaTyped("object")}}));
  ops.push_back(Op("set",
                   "Set one member (\"value\"), members of the object at the path (\"values\"), or make a new "
                   "object there (\"type\")",
                   {"path"}, {{"type", SchemaTyped("string")}, {"values", SchemaTyped("object")}, {"value", cmd_Json::object()}}));
  ops.push_back(Op("get", "Return what the path names as JSON", {"path"}, {}));
  ops.push_back(Op("list", "Return the keys or members below the path", {"path"}, {}));
  ops.push_back(Op("delete", "Remove what the path names", {"path"}, {}));
  ops.push_back(Op("validate", "Check the object at the path against its rules", {"path"}, {}));
  ops.push_back(Op("save", "Save the database to the file atomically", {"file"}, {{"overwrite", SchemaTyped("boolean")}}));
  ops.push_back(Op("open", "Open the database file, replacing the database in memory", {"file"}, {}));
  ops.push_back(Op("undo", "Take back the last change", {}, {}));
  ops.push_back(Op("redo", "Make again the change taken back last", {}, {}));
  ops.push_back(Op("begin", "Start a transaction: the commands up to commit or rollback", {}, {}));
  ops.push_back(Op("commit", "End the transaction, keeping its changes", {}, {}));
  ops.push_back(Op("rollback", "End the transaction, taking back its changes", {}, {}));
  // A transaction holds commands of this very schema.
  cmd_Json transaction = Op("transaction", "Run the commands as one change: all of them or none",
                            {}, {{"commands", {{"type", "array"}, {"items", {{"$ref", "#"}}}}}});
  transaction["required"].push_back("commands");
  ops.push_back(std::move(transaction));
  s["oneOf"] = ops;
  s["allOf"] = PathRules(repositories);
  s["x-maxDepth"] = cmd_kMaxDepth;
  s["x-repositories"] = repositories;
  s["$defs"] = defs_;
  return s;
}

cmd_Json cmd_SchemaBuilder::Op(const char* op, const char* description, std::vector<const char*> required,
                               std::vector<std::pair<const char*, cmd_Json>> extra) {
  cmd_Json props = cmd_Json::object();
  props["op"] = cmd_Json{{"const", op}};
  for (const char* r : required) props[r] = SchemaRef(r);
  for (auto& [k, v] : extra) props[k] = v;
  cmd_Json req = cmd_Json::array();
  req.push_back("op");
  for (const char* r : required) req.push_back(r);
  return cmd_Json{{"description", description}, {"properties", props}, {"required", req}, {"additionalProperties", false}};
}

// Every name scripts construct the class under, each defined: its scripting name, then the
// variants it offers beside it.
std::vector<std::string> cmd_SchemaBuilder::Names(const cls_ClassMetadata& md) {
  Define(md);
  std::vector<std::string> names{md.ScriptName()};
  for (const char* variant : md.ScriptVariants()) {
    DefineVariant(md, variant);
    names.emplace_back(variant);
  }
  return names;
}

// A variant makes an object of the class and takes the class's members; only the name that
// constructs it differs.
void cmd_SchemaBuilder::DefineVariant(const cls_ClassMetadata& md, const std::string& variant) {
  if (defs_.contains(variant)) return;
  cmd_Json d = defs_[md.ScriptName()];
  cmd_Json& props = d["properties"];
  if (!md.FindScriptField("type")) props["type"] = cmd_Json{{"description", "The constructor"}, {"const", variant}};
  props["$type"] = cmd_Json{{"description", "The constructor, as get reports it"}, {"const", variant}};
  d["x-variantOf"] = md.ScriptName();
  defs_[variant] = std::move(d);
}

// The definition of a constructor: its members by scripting name, each with its default.
void cmd_SchemaBuilder::Define(const cls_ClassMetadata& md) {
  const std::string name = md.ScriptName();
  if (defs_.contains(name)) return;
  defs_[name] = cmd_Json::object();  // before the members: a member may hold its own class
  cmd_OwnedObject fresh(md.NewDefault(), cmd_ObjectDeleter{&md});
  cmd_Json props = cmd_Json::object();
  const bool hasTypeMember = md.FindScriptField("type") != nullptr;
  if (!hasTypeMember) props["type"] = cmd_Json{{"description", "The constructor"}, {"const", name}};
  props["$type"] = cmd_Json{{"description", "The constructor, as get reports it"}, {"const", name}};
  for (const auto& f : md.ScriptFields()) {
    cmd_Json m = Member(f);
    if (f.readOnly) m["readOnly"] = true;  // given where the object is made, never changed after
    if (const char* text = md.MemberDescription(f.scriptName); *text) m["description"] = text;
    try {
      m["default"] = cmd_MemberToJson(fresh.get(), f);
    } catch (const std::exception&) {
      // a default that cannot be shown as JSON is left out rather than failing the schema
    }
    props[f.scriptName] = std::move(m);
  }
  cmd_Json d = cmd_Json::object();
  if (const char* summary = md.Summary(); *summary) d["description"] = summary;
  d["type"] = "object";
  d["x-class"] = md.Name().str();
  d["properties"] = std::move(props);
  d["additionalProperties"] = false;
  defs_[name] = std::move(d);
}

// Where an object of `declared` is given inline: one of its constructors, or a container.
cmd_Json cmd_SchemaBuilder::Inline(const cls_ScriptField& f) {
  if (!f.declared) return SchemaTyped("object");
  if (const cls_ClassMetadata* element = cmd_SchemaContainerElement(*f.declared)) {
    cmd_Json any = cmd_Json::array();
    for (const cls_ClassMetadata* c : cmd_SchemaConstructors(*element))
      for (const std::string& n : Names(*c)) any.push_back(SchemaRef(n));
    if (any.empty()) return SchemaTyped("object");
    return cmd_Json{{"type", "object"}, {"additionalProperties", {{"anyOf", any}}}};
  }
  cmd_Json any = cmd_Json::array();
  for (const cls_ClassMetadata* c : cmd_SchemaConstructors(*f.declared))
    for (const std::string& n : Names(*c)) any.push_back(SchemaRef(n));
  if (any.empty()) return SchemaTyped("object");  // nothing registered can stand there yet
  if (any.size() == 1) return any[0];
  return cmd_Json{{"anyOf", any}};
}

cmd_Json cmd_SchemaBuilder::Literals(const cls_ScriptField& f, bool withValues) {
  cmd_Json texts = cmd_Json::array(), values = cmd_Json::array();
  for (int i = 0; f.literals && f.literals[i].text; ++i) {
    texts.push_back(f.literals[i].text);
    values.push_back(f.literals[i].value);
  }
  cmd_Json text = cmd_Json{{"type", "string"}, {"enum", texts}};
  if (!withValues) return text;
  return cmd_Json{{"anyOf", {text, {{"type", "integer"}, {"enum", values}}}}};
}

// A number member as scripts write it: the number, or the literal it may hold instead, or null
// when it may be left unspecified.
cmd_Json cmd_SchemaBuilder::Number(const cls_ScriptField& f) {
  cmd_Json number = f.type == cls_AttrInt ? SchemaInt32() : SchemaTyped("number");
  if (!f.literals && !f.optional) return number;
  cmd_Json any = cmd_Json::array({number});
  if (f.literals) any.push_back(Literals(f, false));
  if (f.optional) any.push_back(SchemaTyped("null"));
  return cmd_Json{{"anyOf", any}};
}

cmd_Json cmd_SchemaBuilder::Member(const cls_ScriptField& f) {
  switch (f.type) {
    case cls_AttrInt:
    case cls_AttrDouble: return Number(f);
    case cls_AttrBool: return SchemaTyped("boolean");
    case cls_AttrString:
    case cls_AttrRegion: return SchemaTyped("string");
    case cls_AttrEnum: return Literals(f, true);
    case cls_AttrEnumList: return SchemaArrayOf(Literals(f, false));
    case cls_AttrIntList: return SchemaArrayOf(SchemaInt32());
    case cls_AttrDoubleList: return SchemaArrayOf(SchemaTyped("number"));
    case cls_AttrStringList:
    case cls_AttrRegionList: return SchemaArrayOf(SchemaTyped("string"));
    case cls_AttrBoolList: return SchemaArrayOf(SchemaTyped("boolean"));
    case cls_AttrDoubleTable: return SchemaArrayOf(SchemaArrayOf(SchemaTyped("number")));
    case cls_AttrObject: {
      // null clears an optional member
      cmd_Json any = {SchemaTyped("null"), Inline(f)};
      if (f.declared && cmd_TableShorthand(*f.declared)) any.push_back(SchemaArrayOf(SchemaArrayOf(SchemaTyped("number"))));
      return cmd_Json{{"anyOf", any}};
    }
    case cls_AttrObjectList: return SchemaArrayOf(cmd_Json{{"anyOf", {SchemaTyped("null"), Inline(f)}}});
    default: return cmd_Json::object();
  }
}

cmd_Json cmd_ScriptSchema() { return cmd_SchemaBuilder().Build(); }
