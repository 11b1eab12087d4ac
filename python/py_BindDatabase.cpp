// The Python classes Repository, Model and Database.
#include <string>
#include <vector>

#include <nlohmann/json.hpp>
#include <pybind11/stl.h>

#include "python/py_Text.h"
#include "python/py_Types.h"

namespace qmxpy {

namespace {

// A file name given as a str or any path-like object (pathlib.Path).
std::string FileName(py::handle file) {
  PyObject* p = PyOS_FSPath(file.ptr());
  if (!p) throw py::error_already_set();
  py::object text = py::reinterpret_steal<py::object>(p);
  if (!py::isinstance<py::str>(text)) throw py::type_error("A file name is a str or a path-like object giving one");
  return TextOf(text);
}

// The container of a detached object that a repository names, as an object.
Object ContainerOf(const Repository& r) { return Object{nullptr, r.root, r.path}; }

}  // namespace

void BindRepository(py::module_& m) {
  py::class_<Repository> repository(m, "Repository",
                                    "A repository of a model or of an object: its elements by key, as a mutable "
                                    "mapping (keys, items, get, pop, update, setdefault, ...).");
  repository.def("keys", [](const Repository& r) { return RepositoryKeys(r); })
      .def("__iter__", [](const Repository& r) { return py::iter(py::cast(RepositoryKeys(r))); })
      .def("__len__", [](const Repository& r) { return RepositorySize(r); })
      .def("__contains__",
           [](const Repository& r, py::handle key) {
             return py::isinstance<py::str>(key) && RepositoryHas(r, TextOf(key));
           })
      .def("__getitem__", [](const Repository& r, Utf8 key) { return RepositoryElement(r, key); })
      .def("__setitem__", [](const Repository& r, Utf8 key, py::handle value) { PutElement(r, key, value); })
      .def("__delitem__", [](const Repository& r, Utf8 key) { DeleteRepositoryElement(r, key); })
      .def("get",
           [](const Repository& r, py::handle key, py::object fallback) -> py::object {
             if (!py::isinstance<py::str>(key) || !RepositoryHas(r, TextOf(key))) return fallback;
             return RepositoryElement(r, TextOf(key));
           },
           py::arg("key"), py::arg("default") = py::none())
      .def("items",
           [](const Repository& r) {
             py::list out;
             for (const auto& k : RepositoryKeys(r)) out.append(py::make_tuple(k, RepositoryElement(r, k)));
             return out;
           })
      .def("values",
           [](const Repository& r) {
             py::list out;
             for (const auto& k : RepositoryKeys(r)) out.append(RepositoryElement(r, k));
             return out;
           })
      .def("advise", [](const Repository& r) { return r.root ? AdviseObject(ContainerOf(r)) : Advise(*r.session, r.path); },
           "The warnings of the advice on every element.")
      .def("validate",
           [](const Repository& r) -> py::object {
             if (r.root) return Validate(ContainerOf(r));
             return FromJson(Run(*r.session, Command("validate", r.path)));
           },
           "Validates every element; failures raise ValidationError carrying every failure (e.failures), "
           "first failure first.")
      .def("to_dict",
           [](const Repository& r) {
             if (!r.root) return FromJson(Run(*r.session, Command("get", r.path)));
             cmd_Json j = ObjectToJson(ContainerOf(r));
             if (j.is_object()) {
               j.erase("type");
               j.erase("$type");
             }
             return FromJson(j);
           })
      .def_property_readonly("path", [](const Repository& r) -> py::object {
        if (r.root) return py::none();
        return FromJson(PathJson(r.path));
      })
      .def("__repr__", [](const Repository& r) {
        const std::string where = r.root ? std::string("inside a detached object") : "at " + cmd_PathText(r.path);
        return "Repository " + where + " with " + std::to_string(RepositorySize(r)) + " elements";
      });
  RefuseNew(repository, "through its model, such as db[\"Model-1\"].profiles");
}

void BindModel(py::module_& m) {
  py::class_<Model> model(m, "Model", "A model of a database; its repositories are attributes by scripting name.");
  model.def_property_readonly("name", [](const Model& self) { return self.name.str(); })
      .def("repositories", [](const Model& self) { return ModelRepositories(self); },
           "The scripting names of the model's repositories.")
      .def("__getattr__",
           [](const Model& self, Utf8 name) -> py::object {
             if (name.text.starts_with("__")) throw py::attribute_error(name.text);
             return ModelRepository(self, name);
           })
      .def("__getitem__", [](const Model& self, Utf8 name) { return ModelRepository(self, name); })
      .def("__dir__", [](py::handle self) { return Dir(self, py::cast(ModelRepositories(self.cast<const Model&>()))); })
      .def("advise", [](const Model& self) { return Advise(*self.session, cmd_Path{self.name}); },
           "The warnings of the advice on every object of the model.")
      .def("validate", [](const Model& self) { return FromJson(Run(*self.session, Command("validate", cmd_Path{self.name}))); },
           "Validates every object of the model; the first failure raises ValidationError with the failing path.")
      .def("to_dict", [](const Model& self) { return FromJson(Run(*self.session, Command("get", cmd_Path{self.name}))); })
      .def("__repr__", [](const Model& self) { return "Model \"" + self.name.str() + "\""; });
  RefuseNew(model, "through its database, such as db[\"Model-1\"]");
}

void BindDatabase(py::module_& m) {
  py::class_<Database> database(m, "Database", "A database of models, saved to and opened from a model database file.");
  database.def(py::init<>())
      .def_static("open",
                  [](py::handle file) {
                    Database db;
                    cmd_Json c = cmd_Json::object();
                    c["op"] = "open";
                    c["file"] = FileName(file);
                    Run(*db.session, std::move(c));
                    return db;
                  },
                  py::arg("path"), "Opens a model database file (upgrading rows of older versions in memory).")
      .def("save",
           [](const Database& db, py::handle file, bool overwrite) {
             cmd_Json c = cmd_Json::object();
             c["op"] = "save";
             c["file"] = FileName(file);
             if (overwrite) c["overwrite"] = true;
             Run(*db.session, std::move(c));
           },
           py::arg("path"), py::arg("overwrite") = false,
           "Saves every model into a model database file, atomically. A file that another process saved "
           "since this database opened or saved it is refused unless overwrite is true.")
      .def("create_model",
           [](const Database& db, Utf8 name) {
             Run(*db.session, Command("create", cmd_Path{cow_String(name.text)}));
             return Model{db.session, cow_String(name.text)};
           },
           py::arg("name"))
      .def("keys", [](const Database& db) { return Keys(*db.session, cmd_Path{}); })
      .def("__iter__", [](const Database& db) { return py::iter(py::cast(Keys(*db.session, cmd_Path{}))); })
      .def("__len__", [](const Database& db) { return Keys(*db.session, cmd_Path{}).size(); })
      .def("__contains__",
           [](const Database& db, py::handle key) {
             return py::isinstance<py::str>(key) && Contains(Keys(*db.session, cmd_Path{}), TextOf(key));
           })
      .def("__getitem__",
           [](const Database& db, Utf8 name) {
             Guarded([&] { cmd_WalkConst(db.session->Database(), cmd_Path{cow_String(name.text)}, [](const cmd_Node&) {}); },
                     "NotFoundError");
             return Model{db.session, cow_String(name.text)};
           })
      .def("__delitem__", [](const Database& db, Utf8 name) {
        DeleteElement(*db.session, cmd_Path{cow_String(name.text)});
      })
      .def("advise", [](const Database& db) { return Advise(*db.session, cmd_Path{}); },
           "The warnings of the advice on every object of every model: dicts of path, member, code and message.")
      .def("undo", [](const Database& db) { return FromJson(Run(*db.session, cmd_Json{{"op", "undo"}})); },
           "Undoes the last command that changed the database (or the last transaction); returns the depths "
           "of the history as {\"undo\": n, \"redo\": m}.")
      .def("redo", [](const Database& db) { return FromJson(Run(*db.session, cmd_Json{{"op", "redo"}})); },
           "Redoes the last command undone.")
      .def("_bracket", [](const Database& db, const std::string& op) { Run(*db.session, cmd_Json{{"op", op}}); })
      .def_property_readonly("in_transaction", [](const Database& db) { return db.session->InTransaction(); })
      .def("validate", [](const Database& db) { return FromJson(Run(*db.session, Command("validate", cmd_Path{}))); },
           "Validates every object of every model.")
      .def("execute",
           [](const Database& db, py::handle command) { return FromJson(db.session->Execute(ToJson(command))); },
           py::arg("command"), "Runs one command of the command layer (a dict) and returns its result as given.")
      .def("to_dict", [](const Database& db) { return FromJson(Run(*db.session, Command("get", cmd_Path{}))); })
      .def("__repr__", [](const Database& db) {
        return "Database with " + std::to_string(Keys(*db.session, cmd_Path{}).size()) + " models";
      });
  ConstructOnNew(database);
}

}  // namespace qmxpy
