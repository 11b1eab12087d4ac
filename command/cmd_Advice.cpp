#include "command/cmd_Advice.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "platform/base/QMXBasException.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {

struct AdviceEntry {
  std::string owner;
  std::string className;
  cmd_Advisor advisor = nullptr;  // or a reference:
  std::string member;
  std::string repository;
};

std::vector<AdviceEntry>& AdviceRegistry() {
  static std::vector<AdviceEntry> entries;
  return entries;
}

const cls_ScriptField* AdviceRepositoryField(const cls_ClassMetadata& md, std::string_view name) {
  for (const cls_ScriptField* f : md.ObjectFields())
    if (name == f->scriptName) return f;
  return nullptr;
}

}  // namespace

void cmd_RegisterAdvisor(std::string_view owner, std::string_view className, cmd_Advisor advisor) {
  AdviceRegistry().push_back(AdviceEntry{std::string(owner), std::string(className), advisor, {}, {}});
}

void cmd_RegisterReference(std::string_view owner, std::string_view className, std::string_view member,
                           std::string_view repository) {
  AdviceRegistry().push_back(
      AdviceEntry{std::string(owner), std::string(className), nullptr, std::string(member), std::string(repository)});
}

void cmd_UnregisterAdvisors(std::string_view owner) {
  auto& r = AdviceRegistry();
  r.erase(std::remove_if(r.begin(), r.end(), [&](const AdviceEntry& e) { return e.owner == owner; }), r.end());
}

// ---- the context

const void* cmd_AdviceContext::Enclosing(std::string_view className) const {
  const cls_ClassMetadata* base = cls_ClassRegistrar::Instance().ByName(className);
  if (!base || scopes_.size() < 2) return nullptr;
  for (std::size_t i = scopes_.size() - 1; i-- > 0;)
    if (scopes_[i].md->IsA(*base)) return scopes_[i].obj;
  return nullptr;
}

cmd_AdviceContext::Lookup cmd_AdviceContext::Find(std::string_view repository, const cow_String& key,
                                                  cmd_Path* repositoryPath) const {
  const mdl_Repository* repo = nullptr;
  std::size_t depth = 0;
  for (std::size_t i = scopes_.size(); i-- > 0 && !repo;) {
    const cls_ScriptField* f = AdviceRepositoryField(*scopes_[i].md, repository);
    if (!f || !f->declared) continue;
    const void* child = f->child(scopes_[i].obj);
    if (child) repo = f->declared->ClassOf(child).AsRepository(child);
    depth = scopes_[i].depth;
  }
  if (!repo && model_) {
    repo = model_->FindRepository(repository);
    depth = modelDepth_;
  }
  if (!repo) return Lookup::kNoScope;
  if (repositoryPath) {
    repositoryPath->assign(path_.begin(), path_.begin() + static_cast<std::ptrdiff_t>(std::min(depth, path_.size())));
    repositoryPath->emplace_back(repository);
  }
  return repo->Contains(key) ? Lookup::kFound : Lookup::kMissing;
}

void cmd_AdviceContext::Warn(std::string member, std::string_view code, std::string message) {
  sink_->push_back(cmd_Warning{path_, std::move(member), std::string(code), std::move(message)});
}

void cmd_AdviceContext::WarnAt(const cmd_Path& relative, std::string member, std::string_view code,
                               std::string message) {
  cmd_Path p = path_;
  p.insert(p.end(), relative.begin(), relative.end());
  sink_->push_back(cmd_Warning{std::move(p), std::move(member), std::string(code), std::move(message)});
}

void cmd_AdviceContext::Reference(const cmd_Path& relative, std::string member, std::string_view repository,
                                  const cow_String& name) {
  if (name.empty()) return;  // no name is no reference; whether one is needed is the rules' matter
  cmd_Path where;
  if (Find(repository, name, &where) != Lookup::kMissing) return;
  WarnAt(relative, std::move(member), "dangling-reference",
         "The name \"" + name.str() + "\" leads nowhere: " + cmd_PathText(where) +
             " holds no element of that name; expected the name of one of its elements");
}

// ---- the walk

namespace {

bool AdviceOwnedBy(const cls_ClassMetadata& md, const AdviceEntry& e) {
  if (md.Name().view() == e.className) return true;
  const cls_ClassMetadata* base = cls_ClassRegistrar::Instance().ByName(e.className);
  return base && md.IsA(*base);
}

}  // namespace

// Whether an object of the class can hold anything advised: its own advisors, a repository's
// elements, or a member object of a family that can.
bool cmd_Adviser::Below(const cls_ClassMetadata& md) {
  Relevance& r = relevance_[&md];
  if (r == Relevance::kPending) return true;  // a class that holds its own kind: walked, to be sure
  if (r != Relevance::kUnknown) return r == Relevance::kYes;
  r = Relevance::kPending;
  bool below = md.IsRepositoryClass();
  for (const AdviceEntry& e : AdviceRegistry())
    if (!below && AdviceOwnedBy(md, e)) below = true;
  for (const cls_ScriptField* f : md.ObjectFields())
    if (!below && f->declared && FamilyBelow(*f->declared)) below = true;
  relevance_[&md] = below ? Relevance::kYes : Relevance::kNo;
  return below;
}

// Whether the declared class of a member, or any class derived from it, can.
bool cmd_Adviser::FamilyBelow(const cls_ClassMetadata& declared) {
  if (auto found = families_.find(&declared); found != families_.end()) return found->second;
  bool below = false;
  for (const cls_ClassMetadata* c : cls_ClassRegistrar::Instance().All())
    if (!below && c->IsA(declared) && Below(*c)) below = true;
  families_[&declared] = below;
  return below;
}

const cmd_Adviser::Advisors& cmd_Adviser::AdvisorsOf(const cls_ClassMetadata& md) {
  Advisors& a = cache_[&md];
  if (a.found) return a;
  for (const AdviceEntry& e : AdviceRegistry()) {
    if (!AdviceOwnedBy(md, e)) continue;
    if (e.advisor) a.fns.push_back(e.advisor);
    else a.refs.push_back(&e);
  }
  for (const cls_ScriptField* f : md.ObjectFields())
    if (f->declared && FamilyBelow(*f->declared)) a.members.emplace_back(f, cow_String(f->scriptName));
  a.below = Below(md);
  a.found = true;
  return a;
}

void cmd_Adviser::AdviseDatabase(const ddr_Database& db) {
  for (const auto& [name, model] : db.GetModels()) {
    ctx_.path_ = {name};
    Model(model.Get());
  }
}

void cmd_Adviser::AdvisePath(const ddr_Database& db, const cmd_Path& path) {
  if (path.empty()) return AdviseDatabase(db);
  // The objects around the node: their repositories are the scopes of the names below it. An
  // element of a list of objects is a copy that lives only while the walk holds it: no scope.
  ctx_.scopes_.clear();
  ctx_.model_ = nullptr;
  ctx_.modelDepth_ = 0;
  cmd_Node::Kind before = cmd_Node::kDatabase;
  for (std::size_t i = 1; i < path.size(); ++i) {
    const cmd_Path prefix(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(i));
    cmd_WalkConst(db, prefix, [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kModel) {
        ctx_.model_ = n.model;
        ctx_.modelDepth_ = 1;
      } else if (n.kind == cmd_Node::kObject && before != cmd_Node::kMember) {
        ctx_.scopes_.push_back({n.obj, n.md, i});
      }
      before = n.kind;
    });
  }
  cmd_WalkConst(db, path, [&](const cmd_Node& n) {
    ctx_.path_ = path;
    Node(n);
  });
}

void cmd_Adviser::AdviseObject(const void* obj, const cls_ClassMetadata& md) {
  ctx_.scopes_.clear();
  ctx_.model_ = nullptr;
  ctx_.modelDepth_ = 0;
  ctx_.path_.clear();
  Object(obj, md);
}

void cmd_Adviser::Node(const cmd_Node& node) {
  switch (node.kind) {
    case cmd_Node::kDatabase: return AdviseDatabase(*node.db);
    case cmd_Node::kModel: return Model(*node.model);
    case cmd_Node::kRepository: return Repository(*node.repo);
    case cmd_Node::kObject: return Object(node.obj, *node.md);
    case cmd_Node::kMember: break;
  }
  cmd_Refuse("Only a model, a repository or an object can be advised; " + cmd_PathText(ctx_.path_) +
             " is the member \"" + node.field->scriptName + "\" of " + cmd_ClassLabel(*node.ownerMd));
}

void cmd_Adviser::Model(const ddr_Model& model) {
  ctx_.model_ = &model;
  ctx_.modelDepth_ = ctx_.path_.size();
  ctx_.path_.emplace_back();
  for (const auto& name : model.RepositoryNames()) {
    ctx_.path_.back() = name;
    Repository(*model.FindRepository(name.view()));
  }
  for (const auto& name : model.ObjectNames()) {
    ctx_.path_.back() = name;
    const cls_ClassMetadata* cls = nullptr;
    const void* obj = model.FindObject(name.view(), &cls);
    Object(obj, *cls);
  }
  ctx_.path_.pop_back();
}

void cmd_Adviser::Repository(const mdl_Repository& repo) {
  repo.ForEachElement(
      [](void* context, const cow_String& key, const void* obj, const cls_ClassMetadata& cls) {
        auto& self = *static_cast<cmd_Adviser*>(context);
        self.ctx_.path_.push_back(key);
        if (const mdl_Repository* inner = cls.AsRepository(obj)) self.Repository(*inner);
        else self.Object(obj, cls);
        self.ctx_.path_.pop_back();
      },
      this);
}

void cmd_Adviser::Object(const void* obj, const cls_ClassMetadata& md) {
  ++visited_;
  const Advisors& a = AdvisorsOf(md);
  if (!a.below) return;  // nothing at or below it is advised
  ctx_.scopes_.push_back({obj, &md, ctx_.path_.size()});
  ctx_.sink_ = &warnings_;
  // An advisor that fails is a fault of the advice, not of the model: said as a warning, and the
  // walk goes on.
  try {
    for (cmd_Advisor fn : a.fns) fn(obj, ctx_);
    for (const void* r : a.refs) {
      const auto& e = *static_cast<const AdviceEntry*>(r);
      const cls_ScriptField* f = md.FindScriptField(e.member);
      if (!f) continue;
      const cls_Value v = f->get(obj);
      if (const auto* s = std::get_if<cow_String>(&v)) ctx_.Reference({}, e.member, e.repository, *s);
      if (const auto* l = std::get_if<std::vector<cow_String>>(&v))
        for (const auto& s : *l) ctx_.Reference({}, e.member, e.repository, s);
    }
  } catch (const QMXBasException& e) {
    ctx_.Warn("", "advice-failed", "The advice on this object stopped: " + e.Message());
  } catch (const std::exception& e) {
    ctx_.Warn("", "advice-failed", std::string("The advice on this object stopped: ") + e.what());
  }
  if (const mdl_Repository* repo = md.AsRepository(obj)) Repository(*repo);
  else Members(obj, a);
  ctx_.scopes_.pop_back();
}

void cmd_Adviser::Members(const void* obj, const Advisors& a) {
  for (const auto& [f, step] : a.members) {
    const void* child = f->child(obj);
    if (!child) continue;
    ctx_.path_.push_back(step);
    const cls_ClassMetadata& cm = f->declared->ClassOf(child);
    if (const mdl_Repository* repo = cm.AsRepository(child)) Repository(*repo);
    else Object(child, cm);
    ctx_.path_.pop_back();
  }
}
