// Repositories and models seen from Python: their keys and elements, through the command layer.
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Check.h"
#include "command/cmd_Json.h"
#include "platform/model/mdl_Repository.h"
#include "python/py_Types.h"

namespace qmxpy {

std::vector<std::string> Keys(cmd_Session& s, const cmd_Path& path) {
  std::vector<std::string> out;
  for (const auto& k : Run(s, Command("list", path))) out.push_back(k.get<std::string>());
  return out;
}

bool Contains(const std::vector<std::string>& keys, const std::string& key) {
  for (const auto& k : keys)
    if (k == key) return true;
  return false;
}

namespace {

// The container inside a detached object that the repository names.
mdl_Repository* DetachedRepository(const Repository& r, bool modify) {
  const Object at{nullptr, r.root, r.path};
  return Guarded([&] {
    Found f = Resolve(at, modify);
    mdl_Repository* repo = f.md->AsRepository(f.obj);
    if (!repo) cmd_Refuse(cmd_ClassLabel(*f.md) + " is not a repository");
    return repo;
  });
}

}  // namespace

std::vector<std::string> RepositoryKeys(const Repository& r) {
  if (!r.root) return Keys(*r.session, r.path);
  std::vector<std::string> out;
  for (const auto& k : DetachedRepository(r, false)->Keys()) out.push_back(k.str());
  return out;
}

std::size_t RepositorySize(const Repository& r) {
  if (r.root) return DetachedRepository(r, false)->Count();
  std::size_t size = 0;
  bool counted = false;
  Guarded([&] {
    cmd_WalkConst(r.session->Database(), r.path, [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kRepository && n.repo) {
        size = n.repo->Count();
        counted = true;
      }
    });
  });
  return counted ? size : Keys(*r.session, r.path).size();
}

bool RepositoryHas(const Repository& r, const std::string& key) {
  if (r.root) return DetachedRepository(r, false)->Contains(cow_String(key));
  bool found = false, asked = false;
  Guarded([&] {
    cmd_WalkConst(r.session->Database(), r.path, [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kRepository && n.repo) {
        found = n.repo->Contains(cow_String(key));
        asked = true;
      }
    });
  });
  return asked ? found : Contains(Keys(*r.session, r.path), key);
}

py::object RepositoryElement(const Repository& r, const std::string& key) {
  if (!r.root) return Element(r.session, Append(r.path, key));
  Object e{nullptr, r.root, Append(r.path, key), r.frozen};
  const cls_ClassMetadata* md = nullptr;
  Guarded([&] { md = Resolve(e, false).md; }, "NotFoundError");
  return Wrap(*md, std::move(e));
}

py::object Element(const Session& s, const cmd_Path& path) {
  py::object result;
  Guarded([&] {
    cmd_WalkConst(s->Database(), path, [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kRepository) result = py::cast(Repository{s, path});
      else if (n.kind == cmd_Node::kObject) result = Wrap(*n.md, Object{s, nullptr, path});  // Wrap records its identity
      else cmd_Refuse(cmd_PathText(path) + " names no element");
    });
  }, "NotFoundError");
  return result;
}

void PutElement(const Repository& r, const std::string& key, py::handle value) {
  if (!IsObject(value))
    throw py::type_error("A repository holds objects made by their constructors, not a " +
                         std::string(py::str(py::type::of(value).attr("__name__"))));
  cmd_Json v = ObjectJson(value);
  const char* k = v.contains("$type") ? "$type" : "type";
  const std::string type = v[k];
  v.erase(k);
  if (r.root) {
    if (r.frozen) RefuseFrozen(key);
    // Made whole before the container is touched, so that a refusal leaves it as it was.
    mdl_Repository* repo = DetachedRepository(r, true);
    Guarded([&] {
      const cls_ClassMetadata& cls = cmd_ClassForConstructor(type, repo->ElementClass());
      cmd_OwnedObject obj = cmd_NewObject(cls, &v);
      const cow_String at(key);
      if (repo->Contains(at)) repo->RemoveKey(at);
      repo->InsertNew(at, obj.release());
    });
    return;
  }
  cmd_Json c = Command("set", Append(r.path, key));
  c["type"] = type;
  c["values"] = std::move(v);
  Run(*r.session, std::move(c));
}

void DeleteElement(cmd_Session& s, const cmd_Path& path) {
  Run(s, Command("delete", path), "NotFoundError");
}

void DeleteRepositoryElement(const Repository& r, const std::string& key) {
  if (!r.root) return DeleteElement(*r.session, Append(r.path, key));
  if (r.frozen) RefuseFrozen(key);
  mdl_Repository* repo = DetachedRepository(r, true);
  Guarded([&] {
    if (!repo->RemoveKey(cow_String(key))) repo->RefuseMissingKey(cow_String(key));
  }, "NotFoundError");
}

py::object ModelRepository(const Model& m, const std::string& name) {
  const cmd_Path path{m.name, cow_String(name)};
  py::object result;
  Guarded([&] {
    // A repository of the model, or an object the model holds whole (engineeringFeatures), whose
    // containers are then its members, as an object's are.
    cmd_WalkConst(m.session->Database(), path, [&](const cmd_Node& n) {
      result = n.kind == cmd_Node::kObject ? Wrap(*n.md, Object{m.session, nullptr, path}) : py::cast(Repository{m.session, path});
    });
  }, "MemberError");
  return result;
}

std::vector<std::string> ModelRepositories(const Model& m) { return Keys(*m.session, cmd_Path{m.name}); }

}  // namespace qmxpy
