// Members of objects read and set by scripting name. Single values go straight through the class
// metadata's accessors (no JSON between: this is the hot path of every script); lists and tables
// come back as views that write each change through to their object, so that an edit inside one
// either takes effect or raises.
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Check.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "python/py_Types.h"

namespace qmxpy {

py::object& ListViewClass() {
  static py::object* cls = new py::object();  // never destroyed: outlives the interpreter's teardown
  return *cls;
}

py::object& ObjectListViewClass() {
  static py::object* cls = new py::object();
  return *cls;
}

py::object& TableViewClass() {
  static py::object* cls = new py::object();
  return *cls;
}

namespace {

bool HoldsList(int type) {
  switch (type) {
    case cls_AttrDoubleTable:
    case cls_AttrIntList:
    case cls_AttrDoubleList:
    case cls_AttrStringList:
    case cls_AttrRegionList:
    case cls_AttrEnumList:
    case cls_AttrBoolList: return true;
    default: return false;
  }
}

py::object ListView(py::handle owner, const char* member) { return ListViewClass()(owner, member); }
py::object ObjectListView(py::handle owner, const char* member) { return ObjectListViewClass()(owner, member); }
py::object TableView(py::handle owner, const char* member) { return TableViewClass()(owner, member); }

}  // namespace

// A single value as Python holds it.
py::object Scalar(const cls_Value& v) {
  return std::visit(
      [&](const auto& x) -> py::object {
        using X = std::decay_t<decltype(x)>;
        if constexpr (std::is_same_v<X, std::monostate>) return py::none();
        else if constexpr (std::is_same_v<X, std::int32_t>) return py::int_(x);
        else if constexpr (std::is_same_v<X, double>) return py::float_(x);
        else if constexpr (std::is_same_v<X, bool>) return py::bool_(x);
        else if constexpr (std::is_same_v<X, cow_String>) return py::str(x.c_str(), x.size());
        else return FromJson(cmd_ValueToJson(v));
      },
      v);
}

// The value a single member takes from a plain Python number, text or boolean of its own kind;
// anything else (None, literals of numbers, other kinds) goes through the command layer's checks.
bool Direct(const cls_ScriptField& f, py::handle value, cls_Value& out) {
  PyObject* p = value.ptr();
  switch (f.type) {
    case cls_AttrDouble:
      if (PyFloat_CheckExact(p)) {
        out = PyFloat_AS_DOUBLE(p);
        return true;
      }
      return false;
    case cls_AttrBool:
      if (PyBool_Check(p)) {
        out = p == Py_True;
        return true;
      }
      return false;
    case cls_AttrString:
    case cls_AttrEnum:
      if (PyUnicode_CheckExact(p)) {
        out = cow_String(TextOf(value));
        return true;
      }
      return false;
    default: return false;
  }
}

namespace {

// The list a member of lists of objects holds now.
std::vector<cls_RecordPtr> ObjectRecords(const Object& o, const cls_ScriptField& f) {
  if (o.root) return std::get<std::vector<cls_RecordPtr>>(f.get(Resolve(o, false).obj));
  std::vector<cls_RecordPtr> out;
  cmd_WalkConst(o.session->Database(), Append(o.path, f.scriptName), [&](const cmd_Node& n) {
    if (n.kind == cmd_Node::kMember) out = std::get<std::vector<cls_RecordPtr>>(n.field->get(n.owner));
  });
  return out;
}

// An object inside an object: a table shorthand reads as its rows, a container as a repository.
py::object Inner(const cls_ClassMetadata& cm, Object child, bool container) {
  if (container) return py::cast(Repository{child.session, std::move(child.path), child.root, child.frozen});
  if (const cls_ScriptField* t = cmd_TableShorthand(cm)) return TableView(Wrap(cm, std::move(child)), t->scriptName);
  return Wrap(cm, std::move(child));
}

}  // namespace

py::object GetMember(py::handle self, const Object& o, const std::string& name) {
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  if (HoldsList(f.type)) return ListView(self, f.scriptName);
  if (f.type == cls_AttrObjectList) return ObjectListView(self, f.scriptName);
  if (o.root) {
    return Guarded([&]() -> py::object {
      Found at = Resolve(o, false);
      if (f.type == cls_AttrObject) {
        const void* child = f.child(at.obj);
        if (!child) return py::none();
        if (!f.declared) Raise("CmdException", "The member \"" + name + "\" holds an object of no registered class",
                               "py_Member.cpp", __LINE__);
        const cls_ClassMetadata& cm = f.declared->ClassOf(child);
        return Inner(cm, Object{nullptr, o.root, Append(o.path, name), o.frozen}, cm.AsRepository(child) != nullptr);
      }
      return Scalar(f.get(at.obj));
    });
  }
  const cmd_Path path = Append(o.path, name);
  py::object result = py::none();
  Guarded([&] {
    cmd_WalkConst(o.session->Database(), path, [&](const cmd_Node& n) {
      switch (n.kind) {
        case cmd_Node::kObject: result = Inner(*n.md, Object{o.session, nullptr, path}, false); break;
        case cmd_Node::kRepository: result = py::cast(Repository{o.session, path}); break;
        case cmd_Node::kMember:
          if (n.field->type == cls_AttrObject) result = py::none();  // an empty optional member
          else result = Scalar(n.field->get(n.owner));
          break;
        default: break;
      }
    });
  });
  return result;
}

py::object ListElement(const Object& o, const std::string& name, Py_ssize_t index) {
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  if (f.type != cls_AttrObjectList)
    Raise("CmdException", "The member \"" + name + "\" of " + cmd_ClassLabel(md) + " holds no list of objects",
          "py_Member.cpp", __LINE__, nullptr, nullptr, cmd_Json(name));
  const std::vector<cls_RecordPtr> list = Guarded([&] { return ObjectRecords(o, f); });
  const auto size = static_cast<Py_ssize_t>(list.size());
  if (index < 0) index += size;
  if (index < 0 || index >= size) throw py::index_error("list index out of range");
  const cls_RecordPtr& record = list[static_cast<std::size_t>(index)];
  if (!record) return py::none();
  const cls_ClassMetadata& em = Guarded([&]() -> const cls_ClassMetadata& { return cls_MetadataOf(record->typeId); });
  if (!o.root) return Wrap(em, Object{o.session, nullptr, Append(Append(o.path, name), std::to_string(index))});
  // The list of a detached object holds records: its element is a copy, frozen so that a change
  // to it is refused rather than lost.
  Object copy;
  copy.root = Guarded([&] { return std::make_shared<Root>(&em, em.NewFromRecord(cls_RecordReader(*record))); });
  copy.frozen = true;
  return Wrap(em, std::move(copy));
}

py::object MemberValue(const Object& o, const std::string& name) {
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  if (o.root) return Guarded([&] { return FromJson(cmd_MemberToJson(Resolve(o, false).obj, f)); });
  py::object result = py::none();
  Guarded([&] {
    cmd_WalkConst(o.session->Database(), Append(o.path, name), [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kMember) result = FromJson(cmd_MemberToJson(n.owner, *n.field));
      else if (n.kind == cmd_Node::kObject) result = FromJson(cmd_ObjectToJson(n.obj, *n.md));
    });
  });
  return result;
}

void RefuseFrozen(const std::string& name) {
  Raise("CmdException", "An element of a list of objects inside a detached object is a copy; set the whole list "
        "(or put the object into a model first) to change \"" + name + "\"", "py_Member.cpp", __LINE__,
        nullptr, nullptr, cmd_Json(name));
}

namespace {

// `obj.data += rows` extends the view in place and then assigns the view to its own member,
// where its value already is: that second write would only be a second step of the history, and
// for a table held by an object of its own, a new table of the rows alone (losing its flags).
bool OwnView(const Object& o, const std::string& name, py::handle value) {
  if (!ListViewClass() || !py::isinstance(value, ListViewClass())) return false;
  if (!py::tuple(value.attr("_at")).empty()) return false;
  py::object owner = value.attr("_owner");
  if (!IsObject(owner)) return false;
  const Object& held = owner.cast<const Object&>();
  if (TableViewClass() && py::isinstance(value, TableViewClass()))
    return held.root == o.root && held.session == o.session && held.path == Append(o.path, name);
  return &held == &o && py::str(value.attr("_member")).cast<std::string>() == name;
}

}  // namespace

void SetMember(const Object& o, const std::string& name, py::handle value) {
  if (OwnView(o, name, value)) return;
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  if (o.frozen) RefuseFrozen(name);
  if (o.root) {
    cls_Value direct;
    const bool fast = Direct(f, value, direct);
    cmd_Json v = fast ? cmd_Json() : ToJson(value);
    Guarded([&] {
      cmd_WithinMember(name, [&] {
        if (f.readOnly) cmd_RefuseReadOnly(f, md);
        Found at = Resolve(o, true);
        f.set(at.obj, fast ? direct : cmd_ValueFromJson(*at.md, f, v));
      });
    });
    return;
  }
  cmd_Json v = ToJson(value);
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

bool Single(int type) {
  switch (type) {
    case cls_AttrInt:
    case cls_AttrDouble:
    case cls_AttrBool:
    case cls_AttrString:
    case cls_AttrEnum:
    case cls_AttrRegion: return true;
    default: return false;
  }
}

// The object itself when `o` is a detached object of class `md` (not a part of one, not frozen):
// the case the typed accessors serve without walking anything.
void* OwnRoot(const Object& o, const cls_ClassMetadata* md) {
  return o.root && o.path.empty() && o.root->md == md && &md->ClassOf(o.root->obj) == md ? o.root->obj : nullptr;
}

void SetAttr(const Object& o, const std::string& name, py::handle value) {
  if (o.root && o.path.empty() && !o.frozen) {
    void* obj = o.root->obj;
    const cls_ScriptField* f = o.root->md->ClassOf(obj).FindScriptField(name);
    cls_Value direct;
    if (f && !f->readOnly && Direct(*f, value, direct)) {
      try {
        f->set(obj, direct);
        return;
      } catch (...) {
        // A refused value changed nothing; the checked way below reports it with its member.
      }
    }
  }
  SetMember(o, name, value);
}

void InitNew(Object& self, const cls_ClassMetadata& md, const py::dict& values) {
  cmd_OwnedObject obj = Guarded([&] {
    try {
      if (!md.CanConstruct()) return cmd_NewObject(md, nullptr);  // refused with the library's message
      // Plain values of single members are set directly, in the order given; any other value
      // makes the whole object through the command layer's conversions (which also admit the
      // read-only members a constructor takes).
      std::vector<std::pair<const cls_ScriptField*, cls_Value>> direct;
      for (auto item : values) {
        const cls_ScriptField* f = md.FindScriptField(TextOf(item.first));
        cls_Value v;
        if (!f || !Direct(*f, item.second, v)) {
          const cmd_Json all = ToJson(values);
          return cmd_NewObject(md, &all);
        }
        direct.emplace_back(f, std::move(v));
      }
      cmd_OwnedObject made(md.NewDefault(), cmd_ObjectDeleter{&md});
      for (auto& [f, v] : direct) cmd_WithinMember(f->scriptName, [&] { f->set(made.get(), v); });
      return made;
    } catch (const cmd_MemberError& e) {
      // A keyword the constructor does not take, as Python reports one: also a TypeError.
      if (e.candidates.empty() || e.members.size() != 1) throw;
      Raise(e.kind, e.message, e.file, e.line, cmd_Json(e.members), "KeywordError", cmd_Json(e.members.back()),
            cmd_Json(e.candidates));
    }
  });
  self.root = std::make_shared<Root>(&md, obj.release());
  self.path.clear();
  self.session.reset();
  self.frozen = false;
}

}  // namespace qmxpy
