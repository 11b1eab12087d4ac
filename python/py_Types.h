#pragma once
// The Python module's own types: databases, models, repositories and objects as Python sees them,
// and the helpers their bindings share. Only the module's sources include this header.
#include <memory>
#include <string>
#include <vector>

#include "command/cmd_Path.h"
#include "command/cmd_Session.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "python/py_Core.h"

namespace qmxpy {

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
  // A view's object as the view was made: its class and uid. A view whose path has come to hold
  // another object (deleted and made again, or another class) refuses rather than show it.
  const cls_ClassMetadata* md = nullptr;
  cls_Uid uid = cls_Uid::Null();
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

// --- commands and paths (py_Run.cpp) ------------------------------------------------------------

cmd_Json PathJson(const cmd_Path& path);
cmd_Path Append(cmd_Path path, const std::string& step);
// Runs one command; a failure raises the module's exception with the system's message.
cmd_Json Run(cmd_Session& s, cmd_Json command, const char* flavour = nullptr);
cmd_Json Command(const char* op, const cmd_Path& path);

// The Python classes of the constructors by scripting name, and the plain Object class.
py::dict& Classes();
py::object& ObjectBase();
// A Python object of the class made for the constructor of `md` (the plain Object class for
// classes that scripts do not construct), holding `o`.
py::object Wrap(const cls_ClassMetadata& md, Object o);
// dir(): the object's own names and `extra`, sorted.
py::list Dir(py::handle self, const py::list& extra);

// --- objects (py_Object.cpp) ---------------------------------------------------------------------

// What an Object made without a constructor says when it is used.
inline constexpr const char* kNoConstructor =
    "An object is made by the constructor of its class, such as CircularProfile(r=1.0)";
const cls_ClassMetadata& ClassOf(const Object& o);
// Records the identity of a view's object (its class and uid), found by its path.
void Identify(Object& o);
py::object Detached(const cls_ClassMetadata& md, void* obj);
py::object GetMember(const Object& o, const std::string& name);
void SetMember(const Object& o, const std::string& name, py::handle value);
py::object Validate(const Object& o);
// The warnings of the advice under what the path names, or on the object (a detached one on its
// own), as a list of dicts of path, member, code and message.
py::object Advise(cmd_Session& s, const cmd_Path& path);
py::object AdviseObject(const Object& o);
cmd_Json ObjectToJson(const Object& o);
py::list Members(const cls_ClassMetadata& md);
// The description of a class for its docstring: its members with their types and literals.
std::string ClassDoc(const cls_ClassMetadata& md);
std::string Repr(const Object& o);

// --- repositories and models (py_Containers.cpp) -------------------------------------------------

std::vector<std::string> Keys(cmd_Session& s, const cmd_Path& path);
bool Contains(const std::vector<std::string>& keys, const std::string& key);
// The size of a repository and whether it holds a key, asked of the repository itself (a lookup,
// not a listing of every key).
std::size_t RepositorySize(const Repository& r);
bool RepositoryHas(const Repository& r, const std::string& key);
py::object Element(const Session& s, const cmd_Path& path);
void PutElement(const Repository& r, const std::string& key, py::handle value);
void DeleteElement(cmd_Session& s, const cmd_Path& path);
py::object ModelRepository(const Model& m, const std::string& name);
std::vector<std::string> ModelRepositories(const Model& m);

// --- the Python classes (py_BindObject.cpp, py_BindDatabase.cpp) ---------------------------------

void BindObject(py::module_& m);
void BindRepository(py::module_& m);
void BindModel(py::module_& m);
void BindDatabase(py::module_& m);
// `Cls.__new__(Cls)` of a bound class (py_New.cpp): constructs the value with the class's
// `__init__` taking no values, or refuses, telling `how` the class's objects are reached.
void ConstructOnNew(py::handle type);
void RefuseNew(py::handle type, const std::string& how);

}  // namespace qmxpy
