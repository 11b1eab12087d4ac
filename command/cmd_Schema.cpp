#include "command/cmd_Schema.h"

#include <cstdint>
#include <exception>
#include <limits>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Json.h"
#include "command/cmd_Line.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {

cmd_Json Ref(const std::string& def) { return cmd_Json{{"$ref", "#/$defs/" + def}}; }

cmd_Json Typed(const char* type) { return cmd_Json{{"type", type}}; }

cmd_Json ArrayOf(cmd_Json items) { return cmd_Json{{"type", "array"}, {"items", std::move(items)}}; }

cmd_Json Int32() {
  return cmd_Json{{"type", "integer"},
                  {"minimum", std::numeric_limits<std::int32_t>::min()},
                  {"maximum", std::numeric_limits<std::int32_t>::max()}};
}

// The classes that can be constructed where `declared` is expected, in registration order.
std::vector<const cls_ClassMetadata*> Constructors(const cls_ClassMetadata& declared) {
  std::vector<const cls_ClassMetadata*> out;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
    if (*md->ScriptName() && md->CanConstruct() && md->IsA(declared)) out.push_back(md);
  return out;
}

// A class whose instances are containers: given inline as an object of elements by key.
const cls_ClassMetadata* ContainerElement(const cls_ClassMetadata& md) {
  if (!md.ScriptFields().empty() || *md.ScriptName() || !md.CanConstruct()) return nullptr;
  cmd_OwnedObject obj(md.NewDefault(), cmd_ObjectDeleter{&md});
  const mdl_Repository* repo = md.AsRepository(static_cast<const void*>(obj.get()));
  return repo ? &repo->ElementClass() : nullptr;
}

class Builder {
 public:
  cmd_Json Build() {
    defs_ = cmd_Json::object();
    defs_["path"] = cmd_Json{{"type", "array"}, {"items", cmd_Json{{"type", cmd_Json{"string", "integer"}}}}};
    defs_["file"] = cmd_Json{{"type", "string"}, {"minLength", 1}};
    cmd_Json repositories = cmd_Json::object();
    ddr_Model model;  // holds every registered repository
    for (const auto& name : model.RepositoryNames()) {
      const cls_ClassMetadata& element = model.FindRepository(name.view())->ElementClass();
      cmd_Json names = cmd_Json::array();
      for (const cls_ClassMetadata* c : Constructors(element))
        for (const std::string& n : Names(*c)) names.push_back(n);
      repositories[name.str()] = names;
    }

    cmd_Json s = cmd_Json::object();
    s["$schema"] = "https://json-schema.org/draft/2020-12/schema";
    s["$id"] = "odbattr-command.schema.json";
    s["title"] = "One command of an odbattr script (one line of JSON Lines)";
    s["type"] = "object";
    s["required"] = cmd_Json{"op"};
    cmd_Json ops = cmd_Json::array();
    ops.push_back(Op("create", {"path"}, {{"type", Typed("string")}, {"values", Typed("object")}}));
    ops.push_back(Op("set", {"path"}, {{"type", Typed("string")}, {"values", Typed("object")}, {"value", cmd_Json::object()}}));
    for (const char* op : {"get", "list", "delete", "validate"}) ops.push_back(Op(op, {"path"}, {}));
    ops.push_back(Op("save", {"file"}, {{"overwrite", Typed("boolean")}}));
    ops.push_back(Op("open", {"file"}, {}));
    for (const char* op : {"undo", "redo", "begin", "commit", "rollback"}) ops.push_back(Op(op, {}, {}));
    // A transaction holds commands of this very schema.
    cmd_Json transaction = Op("transaction", {}, {{"commands", {{"type", "array"}, {"items", {{"$ref", "#"}}}}}});
    transaction["required"].push_back("commands");
    ops.push_back(std::move(transaction));
    s["oneOf"] = ops;
    s["allOf"] = RepositoryRules(repositories);
    s["x-maxDepth"] = cmd_kMaxDepth;
    s["x-repositories"] = repositories;
    s["$defs"] = defs_;
    return s;
  }

 private:
  cmd_Json Op(const char* op, std::vector<const char*> required, std::vector<std::pair<const char*, cmd_Json>> extra) {
    cmd_Json props = cmd_Json::object();
    props["op"] = cmd_Json{{"const", op}};
    for (const char* r : required) props[r] = Ref(r);
    for (auto& [k, v] : extra) props[k] = v;
    cmd_Json req = cmd_Json::array();
    req.push_back("op");
    for (const char* r : required) req.push_back(r);
    return cmd_Json{{"properties", props}, {"required", req}, {"additionalProperties", false}};
  }

  // For each repository: a create or set of an element ([model, repository, key]) names one of
  // its constructors, and the values fit that constructor.
  cmd_Json RepositoryRules(const cmd_Json& repositories) {
    cmd_Json rules = cmd_Json::array();
    for (const auto& [repo, names] : repositories.items()) {
      if (names.empty()) continue;  // a repository whose element class nothing can construct yet
      cmd_Json cond = cmd_Json{
          {"properties",
           {{"op", {{"enum", {"create", "set"}}}},
            {"path", {{"prefixItems", {Typed("string"), {{"const", repo}}}}, {"minItems", 3}, {"maxItems", 3}}}}},
          {"required", {"op", "path"}}};
      cmd_Json byType = cmd_Json::array();
      for (const auto& n : names) {
        const std::string ctor = n.get<std::string>();
        byType.push_back(cmd_Json{{"if", {{"properties", {{"type", {{"const", ctor}}}}}, {"required", {"type"}}}},
                                  {"then", {{"properties", {{"values", Ref(ctor)}}}}}});
      }
      cmd_Json anyValues = cmd_Json::array();
      for (const auto& n : names) anyValues.push_back(Ref(n.get<std::string>()));
      byType.push_back(cmd_Json{{"properties", {{"type", {{"enum", names}}}, {"values", {{"anyOf", anyValues}}}}}});
      rules.push_back(cmd_Json{{"if", cond}, {"then", {{"allOf", byType}}}});
    }
    return rules;
  }

  // Every name scripts construct the class under, each defined: its scripting name, then the
  // variants it offers beside it.
  std::vector<std::string> Names(const cls_ClassMetadata& md) {
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
  void DefineVariant(const cls_ClassMetadata& md, const std::string& variant) {
    if (defs_.contains(variant)) return;
    cmd_Json d = defs_[md.ScriptName()];
    cmd_Json& props = d["properties"];
    if (!md.FindScriptField("type")) props["type"] = cmd_Json{{"const", variant}};
    props["$type"] = cmd_Json{{"const", variant}};
    d["x-variantOf"] = md.ScriptName();
    defs_[variant] = std::move(d);
  }

  // The definition of a constructor: its members by scripting name, each with its default.
  void Define(const cls_ClassMetadata& md) {
    const std::string name = md.ScriptName();
    if (defs_.contains(name)) return;
    defs_[name] = cmd_Json::object();  // before the members: a member may hold its own class
    cmd_OwnedObject fresh(md.NewDefault(), cmd_ObjectDeleter{&md});
    cmd_Json props = cmd_Json::object();
    const bool hasTypeMember = md.FindScriptField("type") != nullptr;
    if (!hasTypeMember) props["type"] = cmd_Json{{"const", name}};
    props["$type"] = cmd_Json{{"const", name}};
    for (const auto& f : md.ScriptFields()) {
      cmd_Json m = Member(f);
      if (f.readOnly) m["readOnly"] = true;  // given where the object is made, never changed after
      try {
        m["default"] = cmd_MemberToJson(fresh.get(), f);
      } catch (const std::exception&) {
        // a default that cannot be shown as JSON is left out rather than failing the schema
      }
      props[f.scriptName] = std::move(m);
    }
    cmd_Json d = cmd_Json::object();
    d["type"] = "object";
    d["x-class"] = md.Name().str();
    d["properties"] = std::move(props);
    d["additionalProperties"] = false;
    defs_[name] = std::move(d);
  }

  // Where an object of `declared` is given inline: one of its constructors, or a container.
  cmd_Json Inline(const cls_ScriptField& f) {
    if (!f.declared) return Typed("object");
    if (const cls_ClassMetadata* element = ContainerElement(*f.declared)) {
      cmd_Json any = cmd_Json::array();
      for (const cls_ClassMetadata* c : Constructors(*element))
        for (const std::string& n : Names(*c)) any.push_back(Ref(n));
      if (any.empty()) return Typed("object");
      return cmd_Json{{"type", "object"}, {"additionalProperties", {{"anyOf", any}}}};
    }
    cmd_Json any = cmd_Json::array();
    for (const cls_ClassMetadata* c : Constructors(*f.declared))
      for (const std::string& n : Names(*c)) any.push_back(Ref(n));
    if (any.empty()) return Typed("object");  // nothing registered can stand there yet
    if (any.size() == 1) return any[0];
    return cmd_Json{{"anyOf", any}};
  }

  cmd_Json Literals(const cls_ScriptField& f, bool withValues) {
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
  cmd_Json Number(const cls_ScriptField& f) {
    cmd_Json number = f.type == cls_AttrInt ? Int32() : Typed("number");
    if (!f.literals && !f.optional) return number;
    cmd_Json any = cmd_Json::array({number});
    if (f.literals) any.push_back(Literals(f, false));
    if (f.optional) any.push_back(Typed("null"));
    return cmd_Json{{"anyOf", any}};
  }

  cmd_Json Member(const cls_ScriptField& f) {
    switch (f.type) {
      case cls_AttrInt:
      case cls_AttrDouble: return Number(f);
      case cls_AttrBool: return Typed("boolean");
      case cls_AttrString:
      case cls_AttrRegion: return Typed("string");
      case cls_AttrEnum: return Literals(f, true);
      case cls_AttrEnumList: return ArrayOf(Literals(f, false));
      case cls_AttrIntList: return ArrayOf(Int32());
      case cls_AttrDoubleList: return ArrayOf(Typed("number"));
      case cls_AttrStringList:
      case cls_AttrRegionList: return ArrayOf(Typed("string"));
      case cls_AttrBoolList: return ArrayOf(Typed("boolean"));
      case cls_AttrDoubleTable: return ArrayOf(ArrayOf(Typed("number")));
      case cls_AttrObject: {
        // null clears an optional member
        cmd_Json any = {Typed("null"), Inline(f)};
        if (f.declared && cmd_TableShorthand(*f.declared)) any.push_back(ArrayOf(ArrayOf(Typed("number"))));
        return cmd_Json{{"anyOf", any}};
      }
      case cls_AttrObjectList: return ArrayOf(cmd_Json{{"anyOf", {Typed("null"), Inline(f)}}});
      default: return cmd_Json::object();
    }
  }

  cmd_Json defs_;
};

}  // namespace

cmd_Json cmd_ScriptSchema() { return Builder().Build(); }
