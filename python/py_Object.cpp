// Objects seen from Python: detached values owned here and views of objects inside a database,
// their members read and set by scripting name.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_AdviceJson.h"
#include "command/cmd_Check.h"
#include "command/cmd_FailureJson.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_Family.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_Record.h"
#include "python/py_Types.h"

namespace qmxpy {

// --- detached objects ----------------------------------------------------------------------------

// Follows steps from a detached root: members holding objects, and keys of the containers among
// them (lists of objects hold copies, which detached objects hand out as frozen copies).
Found Resolve(const Object& o, bool modify) {
  Found f{o.root->obj, &o.root->md->ClassOf(o.root->obj)};
  for (const auto& step : o.path) {
    if (const mdl_Repository* seen = f.md->AsRepository(static_cast<const void*>(f.obj))) {
      const cls_ClassMetadata* cls = nullptr;
      if (!seen->Contains(step)) seen->RefuseMissingKey(step);
      void* element = modify ? f.md->AsRepository(f.obj)->Modify(step, &cls) : const_cast<void*>(seen->Find(step, &cls));
      f = Found{element, cls};
      continue;
    }
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

py::object Validate(const Object& o) {
  if (Live(o).root) {
    // The object and everything it holds, as a validation in a model checks them: every failure,
    // with its path from the detached object (empty for the object itself) and its member.
    cmd_Checker checker;
    Guarded([&] {
      Found at = Resolve(o, false);
      checker.CheckObject(o.path, at.obj, *at.md);
    });
    if (!checker.Failures().empty()) RaiseError(cmd_FailuresJson(checker.Failures()));
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

bool IsObject(py::handle value) { return py::isinstance<Object>(value); }

cmd_Json ObjectJson(py::handle value) { return ObjectToJson(value.cast<const Object&>()); }

namespace {

// The warnings as dicts of path, member, code and message; a warning about the object as a whole
// has no member (None), as an error that concerns no member has none.
py::list WarningList(const std::vector<cmd_Warning>& warnings) {
  py::list out;
  for (const cmd_Json& w : cmd_WarningsJson(warnings)) {
    py::dict one = FromJson(w);
    if (w["member"] == "") one["member"] = py::none();
    out.append(std::move(one));
  }
  return out;
}

}  // namespace

py::object Advise(cmd_Session& s, const cmd_Path& path) {
  return Guarded([&] {
    cmd_Adviser adviser;
    adviser.AdvisePath(s.Database(), path);
    return WarningList(adviser.Warnings());
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
    return WarningList(adviser.Warnings());
  });
}

}  // namespace qmxpy
