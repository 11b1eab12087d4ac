#include "command/cmd_Path.h"

#include <memory>
#include <string_view>
#include <variant>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/cls_Value.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_MapOfCowsRepository.h"
#include "platform/model/mdl_Repository.h"
#include "platform/base/nex_Exception.h"

namespace {

std::string Quoted(std::string_view s) {
  std::string out = "\"";
  for (char c : s) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + "\"";
}

std::string Listing(const std::vector<cow_String>& names) {
  if (names.empty()) return "none";
  std::string out;
  for (const auto& n : names) out += (out.empty() ? "" : ", ") + n.str();
  return out;
}

// At most this many candidates travel with a refusal: a repository may hold 10^5 keys.
constexpr std::size_t kMaxCandidates = 100;

std::vector<std::string> Texts(const std::vector<cow_String>& names) {
  std::vector<std::string> out;
  for (std::size_t i = 0; i < names.size() && i < kMaxCandidates; ++i) out.push_back(names[i].str());
  return out;
}

// Refuses step i of the path: by the module's rule when it throws, else with `generic`; either way
// with the command layer's context around the refusal.
[[noreturn]] void RefuseStep(const cmd_Path& path, std::size_t i, const std::vector<cow_String>& candidates,
                             const std::function<void()>& rule, const std::string& generic) {
  try {
    if (rule) rule();
    cmd_Refuse(generic);
  } catch (const QMXBasException& e) {
    throw cmd_StepError(e, cmd_Path(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(i)), path[i].str(),
                        Texts(candidates));
  }
}

std::vector<cow_String> MemberNames(const cls_ClassMetadata& md) {
  std::vector<cow_String> names;
  for (const auto& sf : md.ScriptFields()) names.emplace_back(sf.scriptName);
  return names;
}

// An object owned by the walk: a copy of an element of a list of objects.
struct OwnedObject {
  const cls_ClassMetadata* md;
  void* obj;
  ~OwnedObject() { md->Destroy(obj); }
};

class Walker {
 public:
  Walker(const cmd_Path& path, std::size_t count, bool modify, const std::function<void(cmd_Node&)>& fn)
      : path_(path), count_(count), modify_(modify), fn_(fn) {}

  void FromDatabase(ddr_Database& db) {
    cmd_Node n;
    n.db = &db;
    if (count_ == 0) return fn_(n);
    const cow_String& name = path_[0];
    ddr_Model* m = modify_ ? db.ModifyModel(name) : const_cast<ddr_Model*>(db.FindModel(name));
    if (!m) RefuseStep(path_, 0, db.ModelNames(), nullptr, "There is no model " + Quoted(name.view()));
    n.kind = cmd_Node::kModel;
    n.model = m;
    n.modelName = name;
    Next(n, 1);
  }

 private:
  static cmd_Node Below(const cmd_Node& n) {
    cmd_Node c;
    c.db = n.db;
    c.model = n.model;
    c.modelName = n.modelName;
    return c;
  }

  void Next(cmd_Node& n, std::size_t i) {
    if (i == count_) return fn_(n);
    const cow_String& step = path_[i];
    switch (n.kind) {
      case cmd_Node::kModel: {
        mdl_Repository* r = modify_ ? n.model->ModifyRepository(step.view())
                                    : const_cast<mdl_Repository*>(n.model->FindRepository(step.view()));
        cmd_Node c = Below(n);
        if (!r) {  // an extension that is one object, whose members the walk goes on into
          c.obj = modify_ ? n.model->ModifyObject(step.view(), &c.md)
                          : const_cast<void*>(n.model->FindObject(step.view(), &c.md));
          if (c.obj) {
            c.kind = cmd_Node::kObject;
            return Next(c, i + 1);
          }
        }
        // A read-only view over repositories ("allFields"): it lives while the rest of the path
        // is walked, and refuses every change itself.
        std::unique_ptr<mdl_Repository> view;
        if (!r && !c.obj && (view = n.model->MakeView(step.view()))) r = view.get();
        if (!r) {
          std::vector<cow_String> names = n.model->RepositoryNames();
          for (const auto& o : n.model->ObjectNames()) names.push_back(o);
          for (const auto& v : ddr_Model::ViewNames()) names.push_back(v);
          RefuseStep(path_, i, names, nullptr,
                     "The model " + Quoted(n.modelName.view()) + " has no repository " + Quoted(step.view()) +
                         "; it has " + Listing(names));
        }
        c.kind = cmd_Node::kRepository;
        c.repo = r;
        return Next(c, i + 1);
      }
      case cmd_Node::kRepository: {
        if (!n.repo->Contains(step))
          RefuseStep(path_, i, n.repo->Keys(), [&] { n.repo->RefuseMissingKey(step); }, "");
        const cls_ClassMetadata* cls = nullptr;
        void* o = modify_ ? n.repo->Modify(step, &cls) : const_cast<void*>(n.repo->Find(step, &cls));
        cmd_Node c = Below(n);
        if (mdl_Repository* r = cls->AsRepository(o)) {  // an element that is itself a container
          c.kind = cmd_Node::kRepository;
          c.repo = r;
        } else {
          c.kind = cmd_Node::kObject;
          c.obj = o;
          c.md = cls;
        }
        return Next(c, i + 1);
      }
      case cmd_Node::kObject:
        return Member(n, i);
      case cmd_Node::kMember:
        cmd_Refuse("The member " + Quoted(n.field->scriptName) + " of " + cmd_ClassLabel(*n.ownerMd) + " holds a value (" +
                   cls_AttrTypeName(n.field->type) + "); the path cannot go on to " + Quoted(step.view()));
      case cmd_Node::kDatabase:
        break;
    }
    cmd_Refuse("The path " + cmd_PathText(path_) + " cannot be followed");
  }

  void Member(cmd_Node& n, std::size_t i) {
    const cow_String& step = path_[i];
    const cls_ScriptField* f = &cmd_FindMember(n.obj, *n.md, step.view(), cmd_Path(path_.begin(), path_.begin() + static_cast<std::ptrdiff_t>(i)));
    cmd_Node c = Below(n);
    c.owner = n.obj;
    c.ownerMd = n.md;
    c.field = f;
    const bool last = i + 1 == count_;
    if (f->type == cls_AttrObject) {
      void* child = modify_ ? f->mutableChild(n.obj) : const_cast<void*>(f->child(n.obj));
      if (child) {
        if (!f->declared) cmd_Refuse("The class of the member " + Quoted(f->scriptName) + " is not registered");
        const cls_ClassMetadata& cm = f->declared->ClassOf(child);
        if (mdl_Repository* r = cm.AsRepository(child)) {
          c.kind = cmd_Node::kRepository;
          c.repo = r;
        } else {
          c.kind = cmd_Node::kObject;
          c.obj = child;
          c.md = &cm;
        }
        return Next(c, i + 1);
      }
      if (!last)
        cmd_Refuse("The member " + Quoted(f->scriptName) + " of " + cmd_ClassLabel(*n.md) +
                   " is empty; the path cannot go on to " + Quoted(path_[i + 1].view()));
    }
    if (f->type == cls_AttrObjectList && !last) return ListElement(c, i + 1);
    c.kind = cmd_Node::kMember;
    Next(c, i + 1);
  }

  // An element of a list of objects: the list holds records, so the element is read into a copy,
  // walked, and written back when modified.
  void ListElement(cmd_Node& m, std::size_t i) {
    auto list = std::get<std::vector<cls_RecordPtr>>(m.field->get(m.owner));
    const cow_String& step = path_[i];
    auto index = mdl_ParseIntegerKey(step.view());
    if (!index || *index < 0 || static_cast<std::size_t>(*index) >= list.size()) {
      std::vector<cow_String> positions;
      for (std::size_t k = 0; k < list.size() && k < kMaxCandidates; ++k) positions.emplace_back(std::to_string(k));
      RefuseStep(path_, i, positions, nullptr,
                 "The list " + Quoted(m.field->scriptName) + " of " + cmd_ClassLabel(*m.ownerMd) + " has no element " +
                     Quoted(step.view()) + "; it holds " + std::to_string(list.size()));
    }
    const std::size_t k = static_cast<std::size_t>(*index);
    if (!list[k])
      cmd_Refuse("Element " + std::to_string(k) + " of the list " + Quoted(m.field->scriptName) + " is empty");
    const cls_ClassMetadata& em = cls_MetadataOf(list[k]->typeId);
    OwnedObject copy{&em, em.NewFromRecord(cls_RecordReader(*list[k]))};
    cmd_Node c = Below(m);
    c.kind = cmd_Node::kObject;
    c.obj = copy.obj;
    c.md = &em;
    Next(c, i + 1);
    if (modify_) {
      cls_RecordWriter w;
      em.Write(copy.obj, w);
      list[k] = std::make_shared<const cls_Record>(w.Take());
      m.field->set(m.owner, list);
    }
  }

  const cmd_Path& path_;
  std::size_t count_;
  bool modify_;
  const std::function<void(cmd_Node&)>& fn_;
};

}  // namespace

cmd_StepError::~cmd_StepError() = default;

const cls_ScriptField& cmd_FindMember(const void* obj, const cls_ClassMetadata& md, std::string_view step,
                                      const cmd_Path& at) {
  if (const cls_ScriptField* f = md.FindScriptField(step)) return *f;
  const std::vector<cow_String> names = MemberNames(md);
  try {
    if (obj) md.RefuseUnknownStep(obj, step);
    cmd_Refuse(cmd_ClassLabel(md) + " has no member " + Quoted(step) + "; its members are " + Listing(names));
  } catch (const QMXBasException& e) {
    throw cmd_StepError(e, at, std::string(step), Texts(names));
  }
}

void cmd_RefuseKey(const mdl_Repository& repo, const cmd_Path& path) {
  RefuseStep(path, path.size() - 1, repo.Keys(), [&] { repo.RefuseMissingKey(path.back()); }, "");
}

std::string cmd_PathText(const cmd_Path& path, std::size_t count) {
  std::string out = "[";
  for (std::size_t i = 0; i < path.size() && i < count; ++i) out += (i ? "," : "") + Quoted(path[i].view());
  return out + "]";
}

void cmd_Refuse(const std::string& message, const char* file, int line) {
  // The file name without the build's directories: messages must not depend on where we built.
  std::string_view f = file ? file : "";
  if (auto slash = f.find_last_of('/'); slash != std::string_view::npos) f.remove_prefix(slash + 1);
  nex_ThrowCmd(message, std::string(f).c_str(), line);
}

std::string cmd_ClassLabel(const cls_ClassMetadata& md) {
  std::string_view script = md.ScriptName();
  return script.empty() ? md.Name().str() : std::string(script);
}

void cmd_Walk(ddr_Database& db, const cmd_Path& path, std::size_t count, bool modify,
              const std::function<void(cmd_Node&)>& fn) {
  if (count > path.size()) count = path.size();
  Walker(path, count, modify, fn).FromDatabase(db);
}

void cmd_WalkConst(const ddr_Database& db, const cmd_Path& path, const std::function<void(const cmd_Node&)>& fn) {
  // The walk changes nothing without `modify`; the cast only lets one walker serve both uses.
  cmd_Walk(const_cast<ddr_Database&>(db), path, path.size(), false, [&](cmd_Node& n) { fn(n); });
}
