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
// root; steps into lists of objects are positions. An element of a list of objects inside a
// detached object is a copy (the list holds records), so it is frozen: a change to it would be
// lost, and is refused instead.
struct Object {
  Session session;
  std::shared_ptr<Root> root;
  cmd_Path path;
  bool frozen = false;
  // A view's object as the view was made: its class and uid. A view whose path has come to hold
  // another object (deleted and made again, or another class) refuses rather than show it.
  const cls_ClassMetadata* md = nullptr;
  cls_Uid uid = cls_Uid::Null();
};

struct Model {
  Session session;
  cow_String name;
};

// A repository of a model or of an object in a model (a path from the database), or a container
// inside a detached object (`root`, and the member steps from it to the container).
struct Repository {
  Session session;
  cmd_Path path;
  std::shared_ptr<Root> root{};
  bool frozen = false;  // inside a copy of an element of a list of objects, as Object::frozen
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
// An object of a detached root, followed from the root by member steps.
struct Found {
  void* obj;
  const cls_ClassMetadata* md;
};
Found Resolve(const Object& o, bool modify);
const cls_ClassMetadata& BoundClass(const Object& o);
// Refuses an Object made without a constructor.
const Object& Live(const Object& o);
const cls_ScriptField& FieldOf(const cls_ClassMetadata& md, const std::string& name);
inline const char* ConstructorKey(const cls_ClassMetadata& md) {
  return md.FindScriptField("type") ? "$type" : "type";
}
py::object Detached(const cls_ClassMetadata& md, void* obj);
// A member by scripting name; `self` is the Python object of `o`. Lists and tables come back as
// views that write every change through to the object (the class registered as the list view).
py::object GetMember(py::handle self, const Object& o, const std::string& name);
// A member's value as plain Python data (lists, dicts), as it is now.
py::object MemberValue(const Object& o, const std::string& name);
// Refuses a change to a frozen object (a copy of an element of a list of objects).
[[noreturn]] void RefuseFrozen(const std::string& name);
py::object& ListViewClass();
// The views of a list of objects and of a table held by an object of its own (its rows, with the
// table object's other members as attributes), registered by the package as ListView is.
py::object& ObjectListViewClass();
py::object& TableViewClass();
// Element `index` (counted from the end when negative) of a list of objects: a view of the
// model's element, or for a detached object a frozen copy; IndexError outside the list.
py::object ListElement(const Object& o, const std::string& name, Py_ssize_t index);
// The property of a member on its constructor's class, read without Python's failed attribute
// lookup first: detached objects of that class read single values through the class metadata
// directly; everything else as GetMember.
py::object MemberProperty(const cls_ClassMetadata& md, const cls_ScriptField& f);
// obj.name = value: a single value of a detached object set directly, everything else as SetMember.
void SetAttr(const Object& o, const std::string& name, py::handle value);
// Installs obj.name = value on Object as a plain CPython method (py_Fast.cpp): the pybind11 call
// machinery costs more than the assignment itself.
void InstallFastSetAttr(py::handle objectType);
// The __init__ of the class made for md's constructor: members by keyword, set in their order.
py::object FastInitFor(py::handle cls, const cls_ClassMetadata& md);

// The typed path (py_Member.cpp): members holding one value, read and set without JSON.
bool Single(int type);
py::object Scalar(const cls_Value& v);
// The value of a plain Python float, bool or str for a member of that kind; false for anything else
// (which goes through the command layer's checks).
bool Direct(const cls_ScriptField& f, py::handle value, cls_Value& out);
// The object itself when `o` is a detached object of class `md` (not a part of one).
void* OwnRoot(const Object& o, const cls_ClassMetadata* md);
// Makes self a new detached object of class md with the given members, in their order.
void InitNew(Object& self, const cls_ClassMetadata& md, const py::dict& values);
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
// The members of a class for tools (the stub generator): dicts of name, type, literals, optional,
// constructors (of object members), table (read as rows), container and default.
py::list ClassFields(const cls_ClassMetadata& md);
// repr(): the constructor and the members that differ from their defaults, on one line; str():
// the same, a member a line.
std::string Repr(const Object& o);
std::string Str(const Object& o);

// --- repositories and models (py_Containers.cpp) -------------------------------------------------

std::vector<std::string> Keys(cmd_Session& s, const cmd_Path& path);
bool Contains(const std::vector<std::string>& keys, const std::string& key);
// The size of a repository and whether it holds a key, asked of the repository itself (a lookup,
// not a listing of every key).
std::size_t RepositorySize(const Repository& r);
bool RepositoryHas(const Repository& r, const std::string& key);
std::vector<std::string> RepositoryKeys(const Repository& r);
py::object Element(const Session& s, const cmd_Path& path);
py::object RepositoryElement(const Repository& r, const std::string& key);
void DeleteRepositoryElement(const Repository& r, const std::string& key);
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
