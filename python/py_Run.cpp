// Commands, paths and the Python classes of the constructors, shared by the module's bindings.
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "platform/persist/cls_ClassMetadata.h"
#include "python/py_Types.h"

namespace qmxpy {

cmd_Json PathJson(const cmd_Path& path) {
  cmd_Json out = cmd_Json::array();
  for (const auto& s : path) out.push_back(s.str());
  return out;
}

cmd_Path Append(cmd_Path path, const std::string& step) {
  path.emplace_back(step);
  return path;
}

cmd_Json Run(cmd_Session& s, cmd_Json command, const char* flavour) {
  cmd_Json r = s.Execute(command);
  if (!r.value("ok", false)) RaiseError(r["error"], flavour);
  return r.contains("result") ? r["result"] : cmd_Json();
}

cmd_Json Command(const char* op, const cmd_Path& path) {
  cmd_Json c = cmd_Json::object();
  c["op"] = op;
  c["path"] = PathJson(path);
  return c;
}

py::dict& Classes() {
  static py::dict* classes = new py::dict();  // never destroyed: outlives the interpreter's teardown
  return *classes;
}

py::object& ObjectBase() {
  static py::object* base = new py::object();
  return *base;
}

py::object Wrap(const cls_ClassMetadata& md, Object o) {
  py::str name(md.ScriptName());
  py::object cls = Classes().contains(name) ? py::object(Classes()[name]) : ObjectBase();
  py::object self = cls.attr("__new__")(cls);
  ObjectBase().attr("__init__")(self);
  if (o.session && !o.root && !o.md) Identify(o);
  self.cast<Object&>() = std::move(o);
  return self;
}

py::list Dir(py::handle self, const py::list& extra) {
  py::list names = py::module_::import("builtins").attr("object").attr("__dir__")(self);
  for (auto n : extra) names.append(n);
  return py::module_::import("builtins").attr("sorted")(py::module_::import("builtins").attr("set")(names));
}

}  // namespace qmxpy
