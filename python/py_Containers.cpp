// Repositories and models seen from Python: their keys and elements, through the command layer.
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Check.h"
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

std::size_t RepositorySize(const Repository& r) {
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

py::object Element(const Session& s, const cmd_Path& path) {
  py::object result;
  Guarded([&] {
    cmd_WalkConst(s->Database(), path, [&](const cmd_Node& n) {
      if (n.kind == cmd_Node::kRepository) result = py::cast(Repository{s, path});
      else if (n.kind == cmd_Node::kObject) result = Wrap(*n.md, Object{s, nullptr, path, n.md, n.md->UidOf(n.obj)});
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
  cmd_Json c = Command("set", Append(r.path, key));
  const char* k = v.contains("$type") ? "$type" : "type";
  c["type"] = v[k];
  v.erase(k);
  c["values"] = std::move(v);
  Run(*r.session, std::move(c));
}

void DeleteElement(cmd_Session& s, const cmd_Path& path) {
  Run(s, Command("delete", path), "NotFoundError");
}

py::object ModelRepository(const Model& m, const std::string& name) {
  const cmd_Path path{m.name, cow_String(name)};
  py::object result;
  Guarded([&] {
    cmd_WalkConst(m.session->Database(), path, [&](const cmd_Node&) { result = py::cast(Repository{m.session, path}); });
  }, "MemberError");
  return result;
}

std::vector<std::string> ModelRepositories(const Model& m) { return Keys(*m.session, cmd_Path{m.name}); }

}  // namespace qmxpy
