// The Python module: databases, models, repositories and objects of the attribute library, all
// driven by the class metadata at run time. Objects inside a database are proxies of a path of
// scripting names that run through the command layer, so a failed change leaves everything as it
// was; detached objects (made by a constructor and not yet put anywhere) own their value.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>
#include <pybind11/stl.h>

#include "command/cmd_Check.h"
#include "command/cmd_Path.h"
#include "command/cmd_Session.h"
#include "frame/QMXOdbAttrEO2.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "python/py_Core.h"

namespace qmxpy {

namespace {

using Session = std::shared_ptr<cmd_Session>;

// A detached object: owned here until it is put into a model (which copies it).
struct Root {
  const cls_ClassMetadata* md;
  void* obj;
  Root(const cls_ClassMetadata* m, void* o) : md(m), obj(o) {}
  Root(const Root&) = delete;
  Root& operator=(const Root&) = delete;
  ~Root() { md->Destroy(obj); }
};

// An object seen from Python: a path from the database (bound) or member steps from a detached
// root; steps into lists of objects are positions.
struct Object {
  Session session;
  std::shared_ptr<Root> root;
  cmd_Path path;
};

struct Model {
  Session session;
  cow_String name;
};

struct Repository {
  Session session;
  cmd_Path path;
};

struct Database {
  Session session = std::make_shared<cmd_Session>();
};

cmd_Json PathJson(const cmd_Path& path) {
  cmd_Json out = cmd_Json::array();
  for (const auto& s : path) out.push_back(s.str());
  return out;
}

cmd_Path Append(cmd_Path path, const std::string& step) {
  path.emplace_back(step);
  return path;
}

// Runs one command; a failure raises the module's exception with the system's message.
cmd_Json Run(cmd_Session& s, cmd_Json command, const char* flavour = nullptr) {
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

// --- Python classes of the constructors ----------------------------------------------------------

py::dict& Classes() {
  static py::dict* classes = new py::dict();  // never destroyed: outlives the interpreter's teardown
  return *classes;
}

py::object& ObjectBase() {
  static py::object* base = new py::object();
  return *base;
}

// A Python object of the class made for the constructor of `md` (the plain Object class for
// classes that scripts do not construct), holding `o`.
py::object Wrap(const cls_ClassMetadata& md, Object o) {
  py::str name(md.ScriptName());
  py::object cls = Classes().contains(name) ? py::object(Classes()[name]) : ObjectBase();
  py::object self = cls.attr("__new__")(cls);
  ObjectBase().attr("__init__")(self);
  self.cast<Object&>() = std::move(o);
  return self;
}

// --- detached objects ----------------------------------------------------------------------------

struct Found {
  void* obj;
  const cls_ClassMetadata* md;
};

// Follows member steps from a detached root; only object members are followed (lists of objects
// hold copies, which detached objects hand out as detached copies).
Found Resolve(const Object& o, bool modify) {
  Found f{o.root->obj, &o.root->md->ClassOf(o.root->obj)};
  for (const auto& step : o.path) {
    const cls_ScriptField* field = f.md->FindScriptField(step.view());
    void* child = nullptr;
    if (field && field->type == cls_AttrObject && field->declared)
      child = modify ? field->mutableChild(f.obj) : const_cast<void*>(field->child(f.obj));
    if (!child) cmd_Refuse("The member \"" + step.str() + "\" of " + cmd_ClassLabel(*f.md) + " holds no object");
    f = Found{child, &field->declared->ClassOf(child)};
  }
  return f;
}

const cls_ClassMetadata& BoundClass(const Object& o) {
  const cls_ClassMetadata* md = nullptr;
  cmd_WalkConst(o.session->Database(), o.path, [&](const cmd_Node& n) {
    if (n.kind != cmd_Node::kObject) cmd_Refuse(cmd_PathText(o.path) + " names no object");
    md = n.md;
  });
  return *md;
}

// An Object made without a constructor holds nothing to work on.
const Object& Live(const Object& o) {
  if (!o.root && !o.session)
    Raise("CmdException", "An object is made by the constructor of its class, such as CircularProfile(r=1.0)",
          "py_Module.cpp", __LINE__);
  return o;
}

const cls_ClassMetadata& ClassOf(const Object& o) {
  Live(o);
  return Guarded([&]() -> const cls_ClassMetadata& { return o.root ? *Resolve(o, false).md : BoundClass(o); });
}

py::object Detached(const cls_ClassMetadata& md, void* obj) {
  Object o;
  o.root = std::make_shared<Root>(&md, obj);
  return Wrap(md, std::move(o));
}

// --- members -------------------------------------------------------------------------------------

const cls_ScriptField& FieldOf(const cls_ClassMetadata& md, const std::string& name) {
  const cls_ScriptField* f = md.FindScriptField(name);
  if (!f) {
    std::string names;
    for (const auto& sf : md.ScriptFields()) names += (names.empty() ? "" : ", ") + std::string(sf.scriptName);
    Raise("CmdException", cmd_ClassLabel(md) + " has no member \"" + name + "\"; its members are " +
          (names.empty() ? "none" : names), "py_Module.cpp", __LINE__, nullptr, "MemberError");
  }
  return *f;
}

py::object GetMember(const Object& o, const std::string& name) {
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  if (o.root) {
    return Guarded([&]() -> py::object {
      Found at = Resolve(o, false);
      if (f.type == cls_AttrObject) {
        const void* child = f.child(at.obj);
        if (!child) return py::none();
        // A container inside a detached object (or a member of an unregistered class): its value.
        if (!f.declared || f.declared->ClassOf(child).AsRepository(child)) return FromJson(cmd_MemberToJson(at.obj, f));
        Object c{nullptr, o.root, Append(o.path, name)};
        return Wrap(f.declared->ClassOf(child), std::move(c));
      }
      if (f.type == cls_AttrObjectList) {
        py::list out;
        const cls_Value list = f.get(at.obj);
        for (const auto& rec : std::get<std::vector<cls_RecordPtr>>(list)) {
          if (!rec) {
            out.append(py::none());
            continue;
          }
          const cls_ClassMetadata& em = cls_MetadataOf(rec->typeId);
          out.append(Detached(em, em.NewFromRecord(cls_RecordReader(*rec))));
        }
        return out;
      }
      return FromJson(cmd_MemberToJson(at.obj, f));
    });
  }
  const cmd_Path path = Append(o.path, name);
  py::object result = py::none();
  Guarded([&] {
    cmd_WalkConst(o.session->Database(), path, [&](const cmd_Node& n) {
      switch (n.kind) {
        case cmd_Node::kObject:
          result = Wrap(*n.md, Object{o.session, nullptr, path});
          break;
        case cmd_Node::kRepository:
          result = py::cast(Repository{o.session, path});
          break;
        case cmd_Node::kMember:
          if (n.field->type == cls_AttrObject) {
            result = py::none();  // an empty optional member
          } else if (n.field->type == cls_AttrObjectList) {
            py::list out;
            const auto list = std::get<std::vector<cls_RecordPtr>>(n.field->get(n.owner));
            for (std::size_t i = 0; i < list.size(); ++i) {
              if (!list[i]) {
                out.append(py::none());
                continue;
              }
              out.append(Wrap(cls_MetadataOf(list[i]->typeId), Object{o.session, nullptr, Append(path, std::to_string(i))}));
            }
            result = std::move(out);
          } else {
            result = FromJson(cmd_MemberToJson(n.owner, *n.field));
          }
          break;
        default:
          break;
      }
    });
  });
  return result;
}

const char* ConstructorKey(const cls_ClassMetadata& md) { return md.FindScriptField("type") ? "$type" : "type"; }

void SetMember(const Object& o, const std::string& name, py::handle value) {
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  cmd_Json v = ToJson(value);
  if (o.root) {
    Guarded([&] {
      Found at = Resolve(o, true);
      f.set(at.obj, cmd_ValueFromJson(*at.md, f, v));
    });
    return;
  }
  cmd_Json c = Command("set", o.path);
  if (v.is_object() && f.type == cls_AttrObject && f.declared) {
    // A whole object replaces the member: made by its constructor, then its values.
    const char* key = v.contains("$type") ? "$type" : "type";
    c["path"].push_back(name);
    if (v.contains(key)) {
      c["type"] = v[key];
      v.erase(key);
    } else {
      c["type"] = f.declared->ScriptName();
    }
    c["values"] = std::move(v);
  } else if (v.is_null()) {
    c["values"] = cmd_Json::object();
    c["values"][name] = nullptr;
  } else {
    c["path"].push_back(name);
    c["value"] = std::move(v);
  }
  Run(*o.session, std::move(c));
}

py::object Validate(const Object& o) {
  if (Live(o).root) {
    Guarded([&] {
      Found at = Resolve(o, false);
      at.md->AssertValid(at.obj);
    });
    return py::none();
  }
  Run(*o.session, Command("validate", o.path));
  return py::none();
}

cmd_Json ObjectToJson(const Object& o) {
  if (Live(o).root) {
    return Guarded([&] {
      Found at = Resolve(o, false);
      return cmd_ObjectToJson(at.obj, *at.md);
    });
  }
  return Run(*o.session, Command("get", o.path));
}

py::list Members(const cls_ClassMetadata& md) {
  py::list out;
  for (const auto& f : md.ScriptFields()) out.append(py::str(f.scriptName));
  return out;
}

// The description of a class for its docstring: its members with their types and literals.
std::string ClassDoc(const cls_ClassMetadata& md) {
  std::string doc = std::string(md.ScriptName()) + "(**members): a " + md.Name().str() +
                    " of the attribute library.\n\nMembers, by scripting name, with their defaults:\n";
  // The defaults, from an object the class makes itself.
  cmd_OwnedObject def(md.CanConstruct() ? Guarded([&] { return md.NewDefault(); }) : nullptr, cmd_ObjectDeleter{&md});
  for (const auto& f : md.ScriptFields()) {
    doc += "    " + std::string(f.scriptName) + ": " + cls_AttrTypeName(f.type);
    if (def && f.type != cls_AttrObject && f.type != cls_AttrObjectList)
      doc += " = " + Guarded([&] { return cmd_MemberToJson(def.get(), f).dump(); });
    if (f.literals) {
      doc += f.type == cls_AttrEnum ? ", one of" : ", or one of";
      for (int i = 0; i < omu_LiteralCount(f.literals); ++i) doc += std::string(i ? ", " : " ") + '"' + f.literals[i].text + '"';
    }
    if ((f.type == cls_AttrObject || f.type == cls_AttrObjectList) && f.declared) {
      const std::string ctors = Guarded([&] { return cmd_ConstructorNames(*f.declared); });
      doc += " (" + (ctors.empty() ? f.declared->Name().str() : ctors) + (f.optional ? "; may be None" : "") + ")";
    }
    doc += "\n";
  }
  if (md.ScriptFields().empty()) doc += "    none\n";
  return doc;
}

std::string Repr(const Object& o) {
  const cls_ClassMetadata& md = ClassOf(o);
  std::string where = o.root ? std::string() : " at " + cmd_PathText(o.path);
  cmd_Json j = ObjectToJson(o);
  if (j.is_object()) j.erase(ConstructorKey(md));
  return cmd_ClassLabel(md) + where + " " + j.dump();
}

// --- repositories, models, databases -------------------------------------------------------------

std::vector<std::string> Keys(cmd_Session& s, const cmd_Path& path) {
  std::vector<std::string> out;
  for (const auto& k : Run(s, Command("list", path))) out.push_back(k.get<std::string>());
  return out;
}

bool Contains(const std::vector<std::string>& keys, const std::string& key) {
  for (const auto& k : keys)
    if (k == key) return true;
  return false;
}

py::object Element(const Session& s, const cmd_Path& path) {
  py::object result;
  Guarded([&] {
    cmd_WalkConst(s->Database(), path, [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kRepository) result = py::cast(Repository{s, path});
      else if (n.kind == cmd_Node::kObject) result = Wrap(*n.md, Object{s, nullptr, path});
      else cmd_Refuse(cmd_PathText(path) + " names no element");
    });
  }, "NotFoundError");
  return result;
}

void PutElement(const Repository& r, const std::string& key, py::handle value) {
  if (!IsObject(value))
    throw py::type_error("A repository holds objects made by their constructors, not a " +
                         std::string(py::str(py::type::of(value).attr("__name__"))));
  cmd_Json v = ObjectJson(value);
  cmd_Json c = Command("set", Append(r.path, key));
  const char* k = v.contains("$type") ? "$type" : "type";
  c["type"] = v[k];
  v.erase(k);
  c["values"] = std::move(v);
  Run(*r.session, std::move(c));
}

void DeleteElement(cmd_Session& s, const cmd_Path& path) {
  Run(s, Command("delete", path), "NotFoundError");
}

py::object ModelRepository(const Model& m, const std::string& name) {
  const cmd_Path path{m.name, cow_String(name)};
  py::object result;
  Guarded([&] {
    cmd_WalkConst(m.session->Database(), path, [&](const cmd_Node&) { result = py::cast(Repository{m.session, path}); });
  }, "MemberError");
  return result;
}

std::vector<std::string> ModelRepositories(const Model& m) { return Keys(*m.session, cmd_Path{m.name}); }

py::list Dir(py::handle self, const py::list& extra) {
  py::list names = py::module_::import("builtins").attr("object").attr("__dir__")(self);
  for (auto n : extra) names.append(n);
  return py::module_::import("builtins").attr("sorted")(py::module_::import("builtins").attr("set")(names));
}

}  // namespace

bool IsObject(py::handle value) { return py::isinstance<Object>(value); }

cmd_Json ObjectJson(py::handle value) { return ObjectToJson(value.cast<const Object&>()); }

}  // namespace qmxpy

PYBIND11_MODULE(_core, m) {
  using namespace qmxpy;
  m.doc() = "The attribute object model for scripts: databases, models, repositories and their objects.";
  int tally = 0;
  QMXOdbAttrEO2_initialize(tally);  // loading the library started it; this only counts the use

  CreateErrors(m);

  py::class_<Object> object(m, "Object",
                            "An object of the attribute library: a detached value made by its constructor, or a "
                            "view of an object inside a model. Members are read and set by scripting name.");
  ObjectBase() = object;
  object.def(py::init<>())
      .def("_init_new",
           [](Object& self, const std::string& ctor, const py::dict& values) {
             const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
             if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
             const cmd_Json v = ToJson(values);
             cmd_OwnedObject obj = Guarded([&] { return cmd_NewObject(*md, v.empty() ? nullptr : &v); });
             self.root = std::make_shared<Root>(md, obj.release());
             self.path.clear();
             self.session.reset();
           })
      .def("__getattr__",
           [](const Object& self, const std::string& name) -> py::object {
             if (name.starts_with("__") || (!self.root && !self.session)) throw py::attribute_error(name);
             return GetMember(self, name);
           })
      .def("__setattr__", [](const Object& self, const std::string& name,
                             py::handle value) { SetMember(self, name, value); })
      .def("__delattr__", [](const Object& self, const std::string& name) { SetMember(self, name, py::none()); })
      .def("__getitem__", [](const Object& self, const std::string& name) { return GetMember(self, name); })
      .def("__setitem__",
           [](const Object& self, const std::string& name, py::handle value) { SetMember(self, name, value); })
      .def("__dir__", [](py::handle self) { return Dir(self, Members(ClassOf(self.cast<const Object&>()))); })
      .def("__repr__", [](const Object& self) { return self.root || self.session ? Repr(self) : std::string("Object()"); })
      .def("__eq__",
           [](const Object& self, py::handle other) -> py::object {
             if (!IsObject(other)) return py::reinterpret_borrow<py::object>(Py_NotImplemented);
             const cls_ClassMetadata& a = ClassOf(self);
             const cls_ClassMetadata& b = ClassOf(other.cast<const Object&>());
             return py::bool_(&a == &b && ObjectToJson(self) == ObjectJson(other));
           })
      .def("validate", [](const Object& self) { return Validate(self); },
           "Checks the object's rules in their order; the first failing rule raises ValidationError with its "
           "message.")
      .def("members", [](const Object& self) { return Members(ClassOf(self)); },
           "The scripting names of the members, in their order.")
      .def("to_dict", [](const Object& self) { return FromJson(ObjectToJson(self)); },
           "The object's value as plain Python data keyed by scripting names, with its constructor under "
           "\"type\".")
      .def("copy",
           [](const Object& self) {
             const cmd_Json j = ObjectToJson(self);
             const cls_ClassMetadata& md = ClassOf(self);
             cmd_OwnedObject obj = Guarded([&] { return cmd_NewObject(md, &j); });
             return Detached(md, obj.release());
           },
           "A detached copy of the object.")
      .def_property_readonly("type_name", [](const Object& self) { return cmd_ClassLabel(ClassOf(self)); },
                             "The scripting constructor name of the object's class.")
      .def_property_readonly("class_name", [](const Object& self) { return ClassOf(self).Name().str(); },
                             "The registered class name.")
      .def_property_readonly("path",
                             [](const Object& self) -> py::object {
                               if (self.root) return py::none();
                               return FromJson(PathJson(self.path));
                             },
                             "The path of scripting names of an object inside a database; None when detached.");
  object.attr("__hash__") = py::none();

  py::class_<Repository>(m, "Repository", "A repository of a model (or of an object): its elements by key.")
      .def("keys", [](const Repository& r) { return Keys(*r.session, r.path); })
      .def("__iter__", [](const Repository& r) { return py::iter(py::cast(Keys(*r.session, r.path))); })
      .def("__len__", [](const Repository& r) { return Keys(*r.session, r.path).size(); })
      .def("__contains__",
           [](const Repository& r, py::handle key) {
             return py::isinstance<py::str>(key) && Contains(Keys(*r.session, r.path), key.cast<std::string>());
           })
      .def("__getitem__", [](const Repository& r, const std::string& key) { return Element(r.session, Append(r.path, key)); })
      .def("__setitem__", [](const Repository& r, const std::string& key, py::handle value) { PutElement(r, key, value); })
      .def("__delitem__", [](const Repository& r, const std::string& key) { DeleteElement(*r.session, Append(r.path, key)); })
      .def("get",
           [](const Repository& r, const std::string& key, py::object fallback) -> py::object {
             if (!Contains(Keys(*r.session, r.path), key)) return fallback;
             return Element(r.session, Append(r.path, key));
           },
           py::arg("key"), py::arg("default") = py::none())
      .def("items",
           [](const Repository& r) {
             py::list out;
             for (const auto& k : Keys(*r.session, r.path)) out.append(py::make_tuple(k, Element(r.session, Append(r.path, k))));
             return out;
           })
      .def("values",
           [](const Repository& r) {
             py::list out;
             for (const auto& k : Keys(*r.session, r.path)) out.append(Element(r.session, Append(r.path, k)));
             return out;
           })
      .def("validate", [](const Repository& r) { return FromJson(Run(*r.session, Command("validate", r.path))); },
           "Validates every element; the first failure raises ValidationError with the failing path.")
      .def("to_dict", [](const Repository& r) { return FromJson(Run(*r.session, Command("get", r.path))); })
      .def_property_readonly("path", [](const Repository& r) { return FromJson(PathJson(r.path)); })
      .def("__repr__", [](const Repository& r) {
        return "Repository at " + cmd_PathText(r.path) + " with " + std::to_string(Keys(*r.session, r.path).size()) +
               " elements";
      });

  py::class_<Model>(m, "Model", "A model of a database; its repositories are attributes by scripting name.")
      .def_property_readonly("name", [](const Model& self) { return self.name.str(); })
      .def("repositories", [](const Model& self) { return ModelRepositories(self); },
           "The scripting names of the model's repositories.")
      .def("__getattr__",
           [](const Model& self, const std::string& name) -> py::object {
             if (name.starts_with("__")) throw py::attribute_error(name);
             return ModelRepository(self, name);
           })
      .def("__getitem__", [](const Model& self, const std::string& name) { return ModelRepository(self, name); })
      .def("__dir__", [](py::handle self) { return Dir(self, py::cast(ModelRepositories(self.cast<const Model&>()))); })
      .def("validate", [](const Model& self) { return FromJson(Run(*self.session, Command("validate", cmd_Path{self.name}))); },
           "Validates every object of the model; the first failure raises ValidationError with the failing path.")
      .def("to_dict", [](const Model& self) { return FromJson(Run(*self.session, Command("get", cmd_Path{self.name}))); })
      .def("__repr__", [](const Model& self) { return "Model \"" + self.name.str() + "\""; });

  py::class_<Database>(m, "Database", "A database of models, saved to and opened from a model database file.")
      .def(py::init<>())
      .def_static("open",
                  [](const std::string& file) {
                    Database db;
                    cmd_Json c = cmd_Json::object();
                    c["op"] = "open";
                    c["file"] = file;
                    Run(*db.session, std::move(c));
                    return db;
                  },
                  py::arg("path"), "Opens a model database file (upgrading rows of older versions in memory).")
      .def("save",
           [](const Database& db, const std::string& file) {
             cmd_Json c = cmd_Json::object();
             c["op"] = "save";
             c["file"] = file;
             Run(*db.session, std::move(c));
           },
           py::arg("path"), "Saves every model into a model database file, atomically.")
      .def("create_model",
           [](const Database& db, const std::string& name) {
             Run(*db.session, Command("create", cmd_Path{cow_String(name)}));
             return Model{db.session, cow_String(name)};
           },
           py::arg("name"))
      .def("keys", [](const Database& db) { return Keys(*db.session, cmd_Path{}); })
      .def("__iter__", [](const Database& db) { return py::iter(py::cast(Keys(*db.session, cmd_Path{}))); })
      .def("__len__", [](const Database& db) { return Keys(*db.session, cmd_Path{}).size(); })
      .def("__contains__",
           [](const Database& db, py::handle key) {
             return py::isinstance<py::str>(key) && Contains(Keys(*db.session, cmd_Path{}), key.cast<std::string>());
           })
      .def("__getitem__",
           [](const Database& db, const std::string& name) {
             Guarded([&] { cmd_WalkConst(db.session->Database(), cmd_Path{cow_String(name)}, [](const cmd_Node&) {}); },
                     "NotFoundError");
             return Model{db.session, cow_String(name)};
           })
      .def("__delitem__", [](const Database& db, const std::string& name) {
        DeleteElement(*db.session, cmd_Path{cow_String(name)});
      })
      .def("validate", [](const Database& db) { return FromJson(Run(*db.session, Command("validate", cmd_Path{}))); },
           "Validates every object of every model.")
      .def("execute",
           [](const Database& db, py::handle command) { return FromJson(db.session->Execute(ToJson(command))); },
           py::arg("command"), "Runs one command of the command layer (a dict) and returns its result as given.")
      .def("to_dict", [](const Database& db) { return FromJson(Run(*db.session, Command("get", cmd_Path{}))); })
      .def("__repr__", [](const Database& db) {
        return "Database with " + std::to_string(Keys(*db.session, cmd_Path{}).size()) + " models";
      });

  m.def("_register_class", [](const std::string& ctor, py::object cls) { Classes()[py::str(ctor)] = cls; });
  m.def("constructors",
        [] {
          std::vector<std::string> out;
          for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
            if (*md->ScriptName() && md->CanConstruct()) out.push_back(md->ScriptName());
          return out;
        },
        "The scripting constructor names of every registered class that scripts construct.");
  m.def("class_doc",
        [](const std::string& ctor) {
          const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
          if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
          return ClassDoc(*md);
        });
  m.def("class_members", [](const std::string& ctor) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(ctor);
    if (!md) Raise("CmdException", "There is no constructor \"" + ctor + "\"", "py_Module.cpp", __LINE__);
    return Members(*md);
  });
}
