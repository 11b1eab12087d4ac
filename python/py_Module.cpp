// The Python module: databases, models, repositories and objects of the attribute library, all
// driven by the class metadata at run time. Objects inside a database are proxies of a path of
// scripting names that run through the command layer, so a failed change leaves everything as it
// was; detached objects (made by a constructor and not yet put anywhere) own their value.
#include <string>
#include <vector>

#include <pybind11/stl.h>

#include "frame/QMXOdbAttrEO2.h"
#include "command/cmd_Json.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "python/py_Types.h"

PYBIND11_MODULE(_core, m) {
  using namespace qmxpy;
  m.doc() = "The attribute object model for scripts: databases, models, repositories and their objects.";
  int tally = 0;
  QMXOdbAttrEO2_initialize(tally);  // loading the library started it; this only counts the use

  CreateErrors(m);
  BindObject(m);
  BindRepository(m);
  BindModel(m);
  BindDatabase(m);

  m.def("_register_class", [](const std::string& ctor, py::object cls) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
    if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
    Classes()[py::str(ctor)] = cls;
    py::setattr(cls, "__init__", FastInitFor(cls, *md));
  });
  m.def("_register_list_view", [](py::object cls, py::object objects, py::object table) {
    ListViewClass() = std::move(cls);
    ObjectListViewClass() = std::move(objects);
    TableViewClass() = std::move(table);
  });
  m.def("_from_dict",
        [](const py::dict& value) {
          // An object from its plain data, constructor name included (what to_dict() gives).
          const cmd_Json j = ToJson(value);
          const char* key = j.contains("$type") ? "$type" : "type";
          const cls_ClassMetadata* md =
              j.contains(key) && j[key].is_string() ? cls_ClassRegistrar::Instance().ByScriptName(j[key].get<std::string>()) : nullptr;
          if (!md) Raise("CmdException", "The data of an object names no constructor under \"type\"", "py_Module.cpp", __LINE__);
          cmd_OwnedObject obj = Guarded([&] { return cmd_NewObject(*md, &j); });
          return Detached(*md, obj.release());
        },
        "A detached object made from the plain data of to_dict().");
  m.def("constructors",
        [] {
          std::vector<std::string> out;
          for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
            if (*md->ScriptName() && md->CanConstruct()) out.push_back(md->ScriptName());
          return out;
        },
        "The scripting constructor names of every registered class that scripts construct.");
  m.def("constructor_variants",
        [] {
          std::vector<std::pair<std::string, std::string>> out;
          for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
            if (*md->ScriptName() && md->CanConstruct())
              for (const char* variant : md->ScriptVariants()) out.emplace_back(variant, md->ScriptName());
          return out;
        },
        "Pairs of a constructor variant and the scripting constructor whose object it makes.");
  m.def("class_doc",
        [](const std::string& ctor) {
          const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
          if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
          return ClassDoc(*md);
        });
  m.def("_class_summary", [](const std::string& ctor) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
    if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
    return std::string(md->Summary());
  });
  m.def("_class_fields", [](const std::string& ctor) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
    if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
    return ClassFields(*md);
  });
  m.def("_member_properties", [](const std::string& ctor) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
    if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
    py::dict out;
    for (const auto& f : md->ScriptFields()) out[py::str(f.scriptName)] = MemberProperty(*md, f);
    return out;
  });
  m.def("class_members", [](const std::string& ctor) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
    if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
    return Members(*md);
  });
}
