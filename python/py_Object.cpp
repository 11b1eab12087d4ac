// Objects seen from Python: detached values owned here and views of objects inside a database,
// their members read and set by scripting name.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_AdviceJson.h"
#include "command/cmd_Check.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "python/py_Types.h"

namespace qmxpy {

// --- detached objects ----------------------------------------------------------------------------

namespace {

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

// The class of a view's object, which must still be the object the view was made for.
const cls_ClassMetadata& BoundClass(const Object& o) {
  const cls_ClassMetadata* md = nullptr;
  cls_Uid uid = cls_Uid::Null();
  cmd_WalkConst(o.session->Database(), o.path, [&](const cmd_Node& n) {
    if (n.kind != cmd_Node::kObject) cmd_Refuse(cmd_PathText(o.path) + " names no object");
    md = n.md;
    uid = n.md->UidOf(n.obj);
  });
  if (o.md && (md != o.md || uid != o.uid))
    cmd_Refuse("This view of " + cmd_ClassLabel(*o.md) + " at " + cmd_PathText(o.path) +
               " is stale: the object there was replaced since; take it from its repository again");
  return *md;
}

// An Object made without a constructor holds nothing to work on.
const Object& Live(const Object& o) {
  if (!o.root && !o.session)
    Raise("CmdException", kNoConstructor, "py_Object.cpp", __LINE__);
  return o;
}

// The member of that name, found as the command layer finds it, so that an unknown name is refused
// with the class's own message ("Unknown material option") where it has one. The refusal depends
// on the class alone, so an object the class makes stands in for the one addressed.
const cls_ScriptField& FieldOf(const cls_ClassMetadata& md, const std::string& name) {
  if (const cls_ScriptField* f = md.FindScriptField(name)) return *f;
  return Guarded([&]() -> const cls_ScriptField& {
    cmd_OwnedObject probe(md.CanConstruct() ? md.NewDefault() : nullptr, cmd_ObjectDeleter{&md});
    return cmd_FindMember(probe.get(), md, name, {});
  }, "MemberError");
}

const char* ConstructorKey(const cls_ClassMetadata& md) { return md.FindScriptField("type") ? "$type" : "type"; }

}  // namespace

const cls_ClassMetadata& ClassOf(const Object& o) {
  Live(o);
  return Guarded([&]() -> const cls_ClassMetadata& { return o.root ? *Resolve(o, false).md : BoundClass(o); });
}

void Identify(Object& o) {
  Guarded([&] {
    cmd_WalkConst(o.session->Database(), o.path, [&](const cmd_Node& n) {
      if (n.kind != cmd_Node::kObject) return;
      o.md = n.md;
      o.uid = n.md->UidOf(n.obj);
    });
  });
}

py::object Detached(const cls_ClassMetadata& md, void* obj) {
  Object o;
  o.root = std::make_shared<Root>(&md, obj);
  return Wrap(md, std::move(o));
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
          result = Wrap(*n.md, Object{o.session, nullptr, path, n.md, n.md->UidOf(n.obj)});
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

void SetMember(const Object& o, const std::string& name, py::handle value) {
  const cls_ClassMetadata& md = ClassOf(o);
  const cls_ScriptField& f = FieldOf(md, name);
  cmd_Json v = ToJson(value);
  if (o.root) {
    Guarded([&] {
      if (f.readOnly) cmd_RefuseReadOnly(f, md);
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
  ClassOf(o);  // a stale view refuses
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
  ClassOf(o);  // a stale view refuses
  return Run(*o.session, Command("get", o.path));
}

py::list Members(const cls_ClassMetadata& md) {
  py::list out;
  for (const auto& f : md.ScriptFields()) out.append(py::str(f.scriptName));
  return out;
}

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
    if (f.readOnly) doc += " (read-only: given only to the constructor)";
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

bool IsObject(py::handle value) { return py::isinstance<Object>(value); }

cmd_Json ObjectJson(py::handle value) { return ObjectToJson(value.cast<const Object&>()); }

py::object Advise(cmd_Session& s, const cmd_Path& path) {
  return Guarded([&] {
    cmd_Adviser adviser;
    adviser.AdvisePath(s.Database(), path);
    return FromJson(cmd_WarningsJson(adviser.Warnings()));
  });
}

py::object AdviseObject(const Object& o) {
  if (!Live(o).root) {
    ClassOf(o);  // a stale view refuses
    return Advise(*o.session, o.path);
  }
  return Guarded([&] {
    Found at = Resolve(o, false);
    cmd_Adviser adviser;
    adviser.AdviseObject(at.obj, *at.md);
    return FromJson(cmd_WarningsJson(adviser.Warnings()));
  });
}

}  // namespace qmxpy
