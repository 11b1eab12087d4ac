#pragma once
// Paths of the command layer: a list of steps in scripting names, from the database down: a model
// name, a repository's scripting name ("adaptiveMeshControls"), a key, member scripting names
// ("elastic"), and positions in lists. cmd_Walk resolves a path to the node it names.
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"
#include "platform/base/QMXBasException.h"
#include "platform/base/cow_String.h"

class ddr_Database;
class ddr_Model;
class mdl_Repository;

using cmd_Path = std::vector<cow_String>;

// The path as a JSON array, for messages: ["Model-1","adaptiveMeshControls","C-1"].
std::string cmd_PathText(const cmd_Path& path, std::size_t count = std::numeric_limits<std::size_t>::max());

// Throws a command refusal (nex_CmdException) recording the command layer's source file and line.
[[noreturn]] void cmd_Refuse(const std::string& message, const char* file = __builtin_FILE(),
                             int line = __builtin_LINE());

// How messages name a class: its scripting constructor name, or its class name for classes that
// scripts do not construct.
std::string cmd_ClassLabel(const cls_ClassMetadata& md);

// A step of a path that names nothing: the refusal as the system raised it (the owning module's
// own message where its shortcuts have one, with its kind, file and line), and around it the
// command layer's context: the path that resolved, the step that did not, and the names that
// would have been valid there.
class __attribute__((visibility("default"))) cmd_StepError : public QMXBasException {
 public:
  cmd_StepError(const QMXBasException& refusal, cmd_Path at, std::string step, std::vector<std::string> candidates)
      : QMXBasException(refusal), kind_(refusal.Kind()), at_(std::move(at)), step_(std::move(step)),
        candidates_(std::move(candidates)) {}
  ~cmd_StepError() override;
  const char* Kind() const noexcept override { return kind_.c_str(); }
  const cmd_Path& At() const noexcept { return at_; }
  const std::string& Step() const noexcept { return step_; }
  const std::vector<std::string>& Candidates() const noexcept { return candidates_; }

 protected:
  [[noreturn]] void Raise() const override { throw *this; }

 private:
  std::string kind_;
  cmd_Path at_;
  std::string step_;
  std::vector<std::string> candidates_;
};

// The member of an object that a step names: its script field, or the refusal of the object's
// own class ("Unknown material option"), or else the command layer's, as a cmd_StepError with
// the members as candidates. `at` is the path of the object.
const cls_ScriptField& cmd_FindMember(const void* obj, const cls_ClassMetadata& md, std::string_view step,
                                      const cmd_Path& at);

// Refuses the last step of the path, a key the repository (reached by the other steps) does not
// hold: with the repository's own refusal and the keys it holds as candidates.
[[noreturn]] void cmd_RefuseKey(const mdl_Repository& repo, const cmd_Path& path);

// What a path leads to.
struct cmd_Node {
  enum Kind { kDatabase, kModel, kRepository, kObject, kMember };
  Kind kind = kDatabase;
  ddr_Database* db = nullptr;
  cow_String modelName;
  ddr_Model* model = nullptr;
  mdl_Repository* repo = nullptr;        // kRepository
  void* obj = nullptr;                   // kObject: the object, as a pointer to its family root
  const cls_ClassMetadata* md = nullptr; // kObject: the object's own class
  // Set when the node was reached through a member of an object (kObject, kRepository, kMember):
  void* owner = nullptr;
  const cls_ClassMetadata* ownerMd = nullptr;
  const cls_ScriptField* field = nullptr;
};

// Resolves the first `count` steps of the path and calls fn with the node they name.
// With `modify`, the repositories on the way hand out their elements for modification (separating
// shared copies and recording "Modify"), and an element of a list of objects is handed to fn as a
// copy that is written back into its list when fn returns. Without it nothing is changed, and fn
// must not change anything either. A path that names nothing is refused with a nex_CmdException
// that names the step.
void cmd_Walk(ddr_Database& db, const cmd_Path& path, std::size_t count, bool modify,
              const std::function<void(cmd_Node&)>& fn);

// The read-only walk over a database the caller may not change.
void cmd_WalkConst(const ddr_Database& db, const cmd_Path& path, const std::function<void(const cmd_Node&)>& fn);
