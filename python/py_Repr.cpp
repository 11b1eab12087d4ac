// How objects read in Python: repr() and str() in constructor form with the members that differ
// from their class's defaults (a default Material is "Material()"), and the classes' docstrings.
#include <map>
#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_Check.h"
#include "command/cmd_Json.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "python/py_Types.h"

namespace qmxpy {

namespace {

// The JSON form of a default object of the class, made once.
const cmd_Json& DefaultsOf(const cls_ClassMetadata& md) {
  static std::map<const cls_ClassMetadata*, cmd_Json>* cache = new std::map<const cls_ClassMetadata*, cmd_Json>();
  auto it = cache->find(&md);
  if (it != cache->end()) return it->second;
  cmd_Json j = cmd_Json::object();
  if (md.CanConstruct()) {
    cmd_OwnedObject def(Guarded([&] { return md.NewDefault(); }), cmd_ObjectDeleter{&md});
    j = cmd_ObjectToJson(def.get(), md);
  }
  return cache->emplace(&md, std::move(j)).first->second;
}

const cls_ClassMetadata* ClassOfJson(const cmd_Json& j, const char** key) {
  for (const char* k : {"$type", "type"}) {
    auto it = j.find(k);
    if (it != j.end() && it->is_string()) {
      *key = k;
      return cls_ClassRegistrar::Instance().ByScriptName(it->get<std::string>());
    }
  }
  return nullptr;
}

std::string PyRepr(const py::object& o) { return py::repr(o).cast<std::string>(); }

// `indent` < 0: one line; else the level of the value, a member or element a line.
std::string Format(const cmd_Json& j, int indent) {
  const bool lines = indent >= 0;
  const std::string inner = lines ? "\n" + std::string(4 * (indent + 1), ' ') : "";
  const std::string close = lines ? ",\n" + std::string(4 * indent, ' ') : "";
  const std::string sep = lines ? "," + inner : ", ";
  const int next = lines ? indent + 1 : -1;
  switch (j.type()) {
    case cmd_Json::value_t::object: {
      const char* key = nullptr;
      const cls_ClassMetadata* md = ClassOfJson(j, &key);
      std::string out, body;
      if (md) {
        const cmd_Json& defaults = DefaultsOf(*md);
        for (const auto& item : j.items()) {
          if (item.key() == key) continue;
          auto d = defaults.find(item.key());
          if (d != defaults.end() && *d == item.value()) continue;
          body += (body.empty() ? "" : sep) + item.key() + "=" + Format(item.value(), next);
        }
        out = j[key].get<std::string>() + "(";
      } else {
        for (const auto& item : j.items())
          body += (body.empty() ? "" : sep) + PyRepr(py::str(item.key())) + ": " + Format(item.value(), next);
        out = "{";
      }
      if (!body.empty()) out += (lines ? inner : "") + body + (lines ? close : "");
      return out + (md ? ")" : "}");
    }
    case cmd_Json::value_t::array: {
      // Rows of a table stay on one line each; only lists of objects are spread over lines.
      bool objects = false;
      for (const auto& e : j) objects = objects || e.is_object();
      const int level = objects ? next : -1;
      std::string body;
      for (const auto& e : j) body += (body.empty() ? "" : (objects ? sep : ", ")) + Format(e, level);
      if (objects && lines && !body.empty()) return "[" + inner + body + close + "]";
      return "[" + body + "]";
    }
    default: return PyRepr(FromJson(j));
  }
}

}  // namespace

std::string Repr(const Object& o) { return Format(ObjectToJson(o), -1); }

std::string Str(const Object& o) { return Format(ObjectToJson(o), 0); }

namespace {

// A member's type as Python sees it.
std::string PythonType(const cls_ScriptField& f) {
  switch (f.type) {
    case cls_AttrInt: return "int";
    case cls_AttrDouble: return "float";
    case cls_AttrBool: return "bool";
    case cls_AttrString: return "str";
    case cls_AttrRegion: return "str (a region name)";
    case cls_AttrEnum: return "str";
    case cls_AttrDoubleTable: return "table (a list of rows of floats)";
    case cls_AttrIntList: return "list of int";
    case cls_AttrDoubleList: return "list of float";
    case cls_AttrStringList: return "list of str";
    case cls_AttrRegionList: return "list of str (region names)";
    case cls_AttrEnumList: return "list of str";
    case cls_AttrBoolList: return "list of bool";
    default: break;
  }
  std::string ctors = f.declared ? Guarded([&] { return cmd_ConstructorNames(*f.declared); }) : std::string("none");
  if (ctors == "none") ctors = "Object";
  std::string what = f.type == cls_AttrObjectList ? "list of " + ctors : ctors;
  if (f.declared && cmd_TableShorthand(*f.declared)) what = "table (a list of rows of floats)";
  return what + (f.optional && f.type == cls_AttrObject ? " or None" : "");
}

}  // namespace

std::string ClassDoc(const cls_ClassMetadata& md) {
  std::string doc = std::string(md.ScriptName()) + "(**members)\n\n";
  if (*md.Summary()) doc += std::string(md.Summary()) + "\n\n";
  doc += "Keywords of the constructor and members, by Python name: type = default";
  doc += md.ScriptFields().empty() ? ": none\n" : "\n";
  const cmd_Json& defaults = DefaultsOf(md);
  for (const auto& f : md.ScriptFields()) {
    doc += "    " + std::string(f.scriptName) + ": " + PythonType(f);
    auto d = defaults.find(f.scriptName);
    if (d != defaults.end() && f.type != cls_AttrObjectList && !(f.type == cls_AttrObject && !d->is_array()))
      doc += " = " + Format(*d, -1);
    if (f.literals) {
      doc += f.type == cls_AttrEnum || f.type == cls_AttrEnumList ? "; one of" : "; or one of";
      for (int i = 0; i < omu_LiteralCount(f.literals); ++i) doc += std::string(i ? ", " : " ") + '"' + f.literals[i].text + '"';
    }
    if (f.readOnly) doc += " (read-only: given only to the constructor)";
    doc += "\n";
    if (const char* meaning = md.MemberDescription(f.scriptName); meaning && *meaning)
      doc += "        " + std::string(meaning) + "\n";
  }
  return doc;
}

py::list ClassFields(const cls_ClassMetadata& md) {
  py::list out;
  const cmd_Json& defaults = DefaultsOf(md);
  for (const auto& f : md.ScriptFields()) {
    py::dict d;
    d["name"] = f.scriptName;
    d["type"] = cls_AttrTypeName(f.type);
    py::list literals;
    if (f.literals)
      for (int i = 0; i < omu_LiteralCount(f.literals); ++i) literals.append(py::str(f.literals[i].text));
    d["literals"] = literals;
    d["optional"] = f.optional;
    py::list ctors;
    bool rows = false, container = false;
    if ((f.type == cls_AttrObject || f.type == cls_AttrObjectList) && f.declared) {
      const std::string names = Guarded([&] { return cmd_ConstructorNames(*f.declared); });
      for (std::size_t at = 0; at < names.size();) {
        std::size_t end = names.find(", ", at);
        if (end == std::string::npos) end = names.size();
        ctors.append(py::str(names.substr(at, end - at)));
        at = end + 2;
      }
      rows = cmd_TableShorthand(*f.declared) != nullptr;
      if (f.declared->CanConstruct()) {
        cmd_OwnedObject probe(Guarded([&] { return f.declared->NewDefault(); }), cmd_ObjectDeleter{f.declared});
        container = f.declared->AsRepository(static_cast<const void*>(probe.get())) != nullptr;
      }
    }
    d["constructors"] = ctors;
    d["table"] = rows;
    d["container"] = container;
    auto def = defaults.find(f.scriptName);
    d["default"] = def != defaults.end() ? FromJson(*def) : py::none();
    d["meaning"] = std::string(md.MemberDescription(f.scriptName) ? md.MemberDescription(f.scriptName) : "");
    out.append(std::move(d));
  }
  return out;
}

}  // namespace qmxpy
