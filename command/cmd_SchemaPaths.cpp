// The rules that follow a command's path from the model down, so that a typo anywhere in a path,
// or in what a create or set gives there, fails the schema as it fails the tool: in a repository
// nested in a model object, in an element of a list of objects, in a single member a `set` gives
// a "value". Each object position becomes one definition, shared by every path that reaches it.
#include <algorithm>
#include <map>
#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_SchemaBuilder.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassMetadata.h"

namespace {

// Object positions deeper than this are left open; no class of the library nests near it.
constexpr std::size_t kSchemaPathDepthLimit = 32;

std::string SchemaPathLabel(const cls_ClassMetadata& md) {
  return *md.ScriptName() ? std::string(md.ScriptName()) : md.Name().str();
}

cmd_Json SchemaPathSteps(std::size_t at, cmd_Json step) {
  cmd_Json prefix = cmd_Json::array();
  for (std::size_t i = 0; i < at; ++i) prefix.push_back(cmd_Json::object());
  prefix.push_back(std::move(step));
  return prefix;
}

// A command whose path has step `at` and that step fits `step`.
cmd_Json SchemaPathAt(std::size_t at, cmd_Json step) {
  return cmd_Json{{"required", {"path"}},
                  {"properties", {{"path", {{"minItems", at + 1}, {"prefixItems", SchemaPathSteps(at, std::move(step))}}}}}};
}

// A command whose path has exactly `length` steps.
cmd_Json SchemaPathLength(std::size_t length) {
  return cmd_Json{{"required", {"path"}}, {"properties", {{"path", {{"minItems", length}, {"maxItems", length}}}}}};
}

// When the path has step `at`, that step fits `step`.
cmd_Json SchemaPathStepIn(std::size_t at, cmd_Json step) {
  return cmd_Json{{"if", {{"required", {"path"}}, {"properties", {{"path", {{"minItems", at + 1}}}}}}},
                  {"then", {{"properties", {{"path", {{"prefixItems", SchemaPathSteps(at, std::move(step))}}}}}}}};
}

cmd_Json SchemaIfThen(cmd_Json condition, cmd_Json then) { return cmd_Json{{"if", std::move(condition)}, {"then", std::move(then)}}; }

}  // namespace

cmd_Json cmd_SchemaBuilder::PathRules(const cmd_Json& repositories) {
  ddr_Model model;  // holds every registered repository and model object
  cmd_Json rules = cmd_Json::array();
  cmd_Json names = cmd_Json::array();
  for (const auto& [repo, constructors] : repositories.items()) {
    names.push_back(repo);
    const cls_ClassMetadata& element = model.FindRepository(repo)->ElementClass();
    rules.push_back(SchemaIfThen(SchemaPathAt(1, {{"const", repo}}), ObjectNode(cmd_SchemaConstructors(element), 3)));
  }
  for (const auto& name : model.ObjectNames()) {
    names.push_back(name.str());
    const cls_ClassMetadata* md = nullptr;
    model.FindObject(name.view(), &md);
    if (!md) continue;
    rules.push_back(SchemaIfThen(SchemaPathAt(1, {{"const", name.str()}}), ObjectNode({md}, 2)));
  }
  rules.insert(rules.begin(), SchemaPathStepIn(1, {{"enum", names}}));
  return rules;
}

cmd_Json cmd_SchemaBuilder::ObjectNode(const Classes& classes, std::size_t depth) {
  if (classes.empty() || depth > kSchemaPathDepthLimit) return cmd_Json::object();
  // "@3:Material" names the definition of a material's members at step 3.
  std::string key = "@" + std::to_string(depth) + ":";
  for (std::size_t i = 0; i < classes.size(); ++i) key += (i ? "," : "") + SchemaPathLabel(*classes[i]);
  const cmd_Json ref = {{"$ref", "#/$defs/" + key}};
  if (defs_.contains(key)) return ref;
  if (!onStack_.insert(key).second) return cmd_Json::object();  // a class that holds itself: open below
  defs_[key] = cmd_Json::object();

  std::vector<std::string> names;
  std::map<std::string, Classes> owners;
  for (const cls_ClassMetadata* c : classes)
    for (const auto& f : c->ScriptFields()) {
      auto& o = owners[f.scriptName];
      if (o.empty()) names.push_back(f.scriptName);
      o.push_back(c);
    }
  cmd_Json all = cmd_Json::array();
  all.push_back(ObjectRules(classes, depth));
  all.push_back(SchemaPathStepIn(depth, {{"enum", names}}));
  for (const auto& name : names)
    all.push_back(SchemaIfThen(SchemaPathAt(depth, {{"const", name}}), MemberNode(owners[name], name, depth + 1)));
  onStack_.erase(key);
  std::string description = "Paths through " + std::string(classes.size() == 1 ? "a " : "one of ");
  for (std::size_t i = 0; i < classes.size(); ++i) description += (i ? ", " : "") + SchemaPathLabel(*classes[i]);
  description += " at step " + std::to_string(depth) + ": its members by scripting name";
  defs_[key] = cmd_Json{{"description", description}, {"allOf", std::move(all)}};
  return ref;
}

cmd_Json cmd_SchemaBuilder::MemberNode(const Classes& owners, const std::string& name, std::size_t depth) {
  cmd_Json values = cmd_Json::array();
  Classes objects, elements;
  for (const cls_ClassMetadata* c : owners) {
    const cls_ScriptField& f = *c->FindScriptField(name);
    cmd_Json value = *c->ScriptName() ? cmd_Json{{"$ref", "#/$defs/" + SchemaPathLabel(*c) + "/properties/" + name}} : Member(f);
    if (std::find(values.begin(), values.end(), value) == values.end()) values.push_back(std::move(value));
    if (!f.declared) continue;
    if (f.type == cls_AttrObject) {
      if (const cls_ClassMetadata* element = cmd_SchemaContainerElement(*f.declared)) {
        for (const cls_ClassMetadata* e : cmd_SchemaConstructors(*element)) elements.push_back(e);
      } else {
        for (const cls_ClassMetadata* o : cmd_SchemaConstructors(*f.declared)) objects.push_back(o);
      }
    } else if (f.type == cls_AttrObjectList) {
      for (const cls_ClassMetadata* e : cmd_SchemaConstructors(*f.declared)) elements.push_back(e);
    }
  }
  const auto unique = [](Classes v) {
    Classes out;
    for (const cls_ClassMetadata* c : v)
      if (std::find(out.begin(), out.end(), c) == out.end()) out.push_back(c);
    return out;
  };
  cmd_Json all = cmd_Json::array();
  // A set of this one member gives its "value".
  all.push_back(SchemaIfThen(SchemaPathLength(depth),
                             {{"properties", {{"value", values.size() == 1 ? values[0] : cmd_Json{{"anyOf", values}}}}}}));
  // The member object itself (a slot) and what lies in it; the elements of a list or container
  // one step further, past their position or key.
  if (!objects.empty()) all.push_back(ObjectNode(unique(objects), depth));
  if (!elements.empty()) all.push_back(ObjectNode(unique(elements), depth + 1));
  return cmd_Json{{"allOf", std::move(all)}};
}

cmd_Json cmd_SchemaBuilder::ObjectRules(const Classes& classes, std::size_t depth) {
  cmd_Json names = cmd_Json::array(), refs = cmd_Json::array(), byType = cmd_Json::array();
  for (const cls_ClassMetadata* c : classes) {
    if (!*c->ScriptName() || !c->CanConstruct()) continue;
    for (const std::string& n : Names(*c)) {
      names.push_back(n);
      refs.push_back({{"$ref", "#/$defs/" + n}});
      byType.push_back(SchemaIfThen({{"properties", {{"type", {{"const", n}}}}}, {"required", {"type"}}},
                                    {{"properties", {{"values", {{"$ref", "#/$defs/" + n}}}}}}));
    }
  }
  if (names.empty()) return cmd_Json::object();
  byType.push_back({{"properties", {{"type", {{"enum", names}}}, {"values", {{"anyOf", refs}}}}}});
  cmd_Json condition = SchemaPathLength(depth);
  condition["required"].push_back("op");
  condition["properties"]["op"] = {{"enum", {"create", "set"}}};
  return SchemaIfThen(std::move(condition), {{"allOf", std::move(byType)}});
}
