#include "command/cmd_Check.h"

#include <exception>

#include "platform/base/QMXBasException.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"

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
    cmd_Path p;
  } walk{this, path};
  walk.p.emplace_back();
  repo.ForEachElement(
      [](void* context, const cow_String& key, const void* obj, const cls_ClassMetadata& cls) {
        auto& w = *static_cast<Walk*>(context);
        w.p.back() = key;
        w.self->Object(w.p, obj, cls);
      },
      &walk);
}

void cmd_Checker::Object(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md) {
  try {
    md.AssertValid(obj);
  } catch (const QMXBasException& e) {
    failures_.push_back(cmd_Failure{path, e.Kind(), e.Message(), e.File(), e.Line()});
  } catch (const std::exception& e) {
    failures_.push_back(cmd_Failure{path, "Error", e.what(), "", 0});
  }
  ++checked_;
  if (progress_) progress_(checked_);
  if (const mdl_Repository* repo = md.AsRepository(obj)) Repository(path, *repo);  // a container as an element
  else Nested(path, obj, md);
}

void cmd_Checker::Nested(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md) {
  for (const auto& f : md.ScriptFields()) {
    if (f.type != cls_AttrObject || !f.declared) continue;
    const void* child = f.child(obj);
    if (!child) continue;
    cmd_Path p = path;
    p.emplace_back(f.scriptName);
    const cls_ClassMetadata& cm = f.declared->ClassOf(child);
    if (const mdl_Repository* repo = cm.AsRepository(child)) Repository(p, *repo);
    else Nested(p, child, cm);
  }
}
