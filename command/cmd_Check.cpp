#include "command/cmd_Check.h"

#include <exception>
#include <string_view>
#include <variant>
#include <vector>

#include "command/cmd_Json.h"
#include "platform/base/QMXBasException.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/cls_Value.h"

namespace {

// Whether validating one object raises exactly the failure given (kind, message and position).
bool cmd_RaisesSame(const void* obj, const cls_ClassMetadata& md, const QMXBasException& failure) {
  try {
    md.AssertValid(obj);
  } catch (const QMXBasException& e) {
    return std::string_view(e.Kind()) == failure.Kind() && e.Message() == failure.Message() &&
           std::string_view(e.File()) == failure.File() && e.Line() == failure.Line();
  } catch (const std::exception&) {
  }
  return false;
}

// Whether an element of the container raises exactly the failure given.
bool cmd_AnyElementRaises(const mdl_Repository& repo, const QMXBasException& failure) {
  struct Search {
    const QMXBasException* failure;
    bool found = false;
  } search{&failure};
  repo.ForEachElement(
      [](void* context, const cow_String&, const void* obj, const cls_ClassMetadata& cls) {
        auto& s = *static_cast<Search*>(context);
        if (!s.found) s.found = cmd_RaisesSame(obj, cls, *s.failure);
      },
      &search);
  return search.found;
}

}  // namespace

std::string cmd_FailingMember(const void* obj, const cls_ClassMetadata& md, const QMXBasException& failure) {
  for (const cls_ScriptField& f : md.ScriptFields()) {
    if (f.type == cls_AttrObject && f.declared) {
      const void* child = f.child(obj);
      if (!child) continue;
      const cls_ClassMetadata& cm = f.declared->ClassOf(child);
      // An object that validates the elements of a container it holds fails with an element's
      // failure (which the element reports again with its own path).
      if (const mdl_Repository* repo = cm.AsRepository(child)) {
        if (cmd_AnyElementRaises(*repo, failure)) return f.scriptName;
      } else if (cmd_RaisesSame(child, cm, failure)) {
        return f.scriptName;
      }
    } else if (f.type == cls_AttrObjectList) {
      // The list holds records: each element is made again to be validated.
      const cls_Value list = f.get(obj);
      for (const cls_RecordPtr& record : std::get<std::vector<cls_RecordPtr>>(list)) {
        const cls_ClassMetadata* em = record ? cls_ClassRegistrar::Instance().ByTypeId(record->typeId) : nullptr;
        if (!em) continue;
        try {
          const cmd_OwnedObject element(em->NewFromRecord(cls_RecordReader(*record)), cmd_ObjectDeleter{em});
          if (cmd_RaisesSame(element.get(), *em, failure)) return f.scriptName;
        } catch (const std::exception&) {
          // An element that cannot be made again names nothing; the failure stands as reported.
        }
      }
    }
  }
  return {};
}

void cmd_Checker::CheckDatabase(const ddr_Database& db) {
  for (const auto& [name, model] : db.GetModels()) Model({name}, model.Get());
}

void cmd_Checker::CheckNode(const cmd_Node& node, const cmd_Path& path) {
  switch (node.kind) {
    case cmd_Node::kDatabase: return CheckDatabase(*node.db);
    case cmd_Node::kModel: return Model(path, *node.model);
    case cmd_Node::kRepository: return Repository(path, *node.repo);
    case cmd_Node::kObject: return Object(path, node.obj, *node.md);
    case cmd_Node::kMember: break;
  }
  cmd_Refuse("Only a model, a repository or an object can be validated; " + cmd_PathText(path) +
             " is the member \"" + node.field->scriptName + "\" of " + cmd_ClassLabel(*node.ownerMd));
}

void cmd_Checker::Model(cmd_Path path, const ddr_Model& model) {
  path.emplace_back();
  for (const auto& name : model.RepositoryNames()) {
    path.back() = name;
    Repository(path, *model.FindRepository(name.view()));
  }
  for (const auto& name : model.ObjectNames()) {  // holders of repositories, counted like the model
    path.back() = name;
    const cls_ClassMetadata* cls = nullptr;
    const void* obj = model.FindObject(name.view(), &cls);
    Nested(path, obj, *cls);
  }
}

void cmd_Checker::Repository(const cmd_Path& path, const mdl_Repository& repo) {
  struct Walk {
    cmd_Checker* self;
    const cmd_Path* parent;
  } walk{this, &path};
  repo.ForEachElement(
      [](void* context, const cow_String& key, const void* obj, const cls_ClassMetadata& cls) {
        auto& w = *static_cast<Walk*>(context);
        w.self->Element(*w.parent, &key, obj, cls);
      },
      &walk);
}

void cmd_Checker::Object(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md) {
  if (path.empty()) return Element(path, nullptr, obj, md);  // no walk reaches an object there
  const cmd_Path parent(path.begin(), path.end() - 1);
  Element(parent, &path.back(), obj, md);
}

// The element's own path is made only when it is needed: for a failure, or to walk into what
// the element holds. Most elements of a large model need neither.
void cmd_Checker::Element(const cmd_Path& parent, const cow_String* key, const void* obj, const cls_ClassMetadata& md) {
  auto pathOf = [&] {
    cmd_Path p;
    p.reserve(parent.size() + 1);
    p.insert(p.end(), parent.begin(), parent.end());
    if (key) p.push_back(*key);
    return p;
  };
  try {
    md.AssertValid(obj);
  } catch (const QMXBasException& e) {
    failures_.push_back(cmd_Failure{pathOf(), e.Kind(), e.Message(), e.File(), e.Line(), cmd_FailingMember(obj, md, e)});
  } catch (const std::exception& e) {
    failures_.push_back(cmd_Failure{pathOf(), "Error", e.what(), "", 0});
  }
  ++checked_;
  if (progress_) progress_(checked_);
  if (const mdl_Repository* repo = md.AsRepository(obj)) Repository(pathOf(), *repo);  // a container as an element
  else if (!md.ObjectFields().empty()) Nested(pathOf(), obj, md);
}

void cmd_Checker::Nested(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md) {
  for (const cls_ScriptField* f : md.ObjectFields()) {
    const void* child = f->child(obj);
    if (!child) continue;
    cmd_Path p = path;
    p.emplace_back(f->scriptName);
    const cls_ClassMetadata& cm = f->declared->ClassOf(child);
    if (const mdl_Repository* repo = cm.AsRepository(child)) Repository(p, *repo);
    else Nested(p, child, cm);
  }
}
