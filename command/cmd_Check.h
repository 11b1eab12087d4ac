#pragma once
// Validation of everything under a node: every element of every repository (nested repositories
// included) is validated with its class's AssertValid, and every failure is kept with the path of
// the failing object and the exception's kind, exact message and source position.
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "command/cmd_Path.h"

struct cmd_Failure {
  cmd_Path path;
  std::string kind;
  std::string message;
  std::string file;
  int line = 0;
  // The scripting name of the member whose object raised the failure; empty when the failure is
  // a rule of the object itself.
  std::string member{};
};

class QMXBasException;

// The member of `obj` (an instance of `md`) whose object, or an element of whose list of objects,
// fails its own validation with exactly `failure`; empty when none does (the failure is a rule of
// the object itself). Asked only after a failure, so it may validate the member objects again.
std::string cmd_FailingMember(const void* obj, const cls_ClassMetadata& md, const QMXBasException& failure);

class cmd_Checker {
 public:
  // Called after each object with the number of objects checked so far.
  using Progress = std::function<void(std::size_t checked)>;
  explicit cmd_Checker(Progress progress = {}) : progress_(std::move(progress)) {}

  void CheckDatabase(const ddr_Database& db);
  // Everything under a node the walk reached at `path`; a plain member is refused.
  void CheckNode(const cmd_Node& node, const cmd_Path& path);
  // An object outside any database (a detached one) and everything it holds: failures carry paths
  // from `path`, which is the object's own (empty for the object itself).
  void CheckObject(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md) { Element(path, nullptr, obj, md); }

  std::size_t Checked() const noexcept { return checked_; }
  const std::vector<cmd_Failure>& Failures() const noexcept { return failures_; }

 private:
  void Model(cmd_Path path, const ddr_Model& model);
  void Repository(const cmd_Path& path, const mdl_Repository& repo);
  void Object(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md);
  // The element under `key` of what `parent` names; with no key, the object `parent` names.
  void Element(const cmd_Path& parent, const cow_String* key, const void* obj, const cls_ClassMetadata& md);
  // Repositories held in members of an object (at any depth of member objects).
  void Nested(const cmd_Path& path, const void* obj, const cls_ClassMetadata& md);

  Progress progress_;
  std::size_t checked_ = 0;
  std::vector<cmd_Failure> failures_;
};
