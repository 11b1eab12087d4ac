#pragma once
// Advice: what the validation rules let through but an engineer would want to hear (a modulus that
// is not positive, a name that leads nowhere, a table out of order). A separate walk over what the
// validation walk visits, and the member objects below each, asks the advisors that modules
// register per class for warnings. Advice never throws for a model, valid or not, and never
// changes validation.
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "command/cmd_Path.h"

// One warning: the object's path as the command layer writes it, the member the warning is about
// (its scripting name; empty for the object as a whole), a stable code and what is wrong and
// what is expected.
struct cmd_Warning {
  cmd_Path path;
  std::string member;
  std::string code;
  std::string message;
};

// What an advisor sees of the walk: where the object is, the objects around it, and the sink.
class cmd_AdviceContext {
 public:
  // The path of the object being advised.
  const cmd_Path& Path() const noexcept { return path_; }
  // The nearest enclosing object of that class (or a class derived from it), as a pointer to the
  // root of its family; null when there is none.
  const void* Enclosing(std::string_view className) const;

  enum class Lookup { kFound, kMissing, kNoScope };
  // Whether `key` is an element of the repository of that scripting name that is nearest around
  // the object: the nearest enclosing object that holds one as a member, else the model. kNoScope
  // when nothing around holds such a repository (the target is not kept by this model).
  Lookup Find(std::string_view repository, const cow_String& key, cmd_Path* repositoryPath = nullptr) const;

  // A warning about a member of the object, or of an object below it at `relative` steps.
  void Warn(std::string member, std::string_view code, std::string message);
  void WarnAt(const cmd_Path& relative, std::string member, std::string_view code, std::string message);
  // "dangling-reference" when `name` (not empty) is no element of the nearest such repository.
  void Reference(const cmd_Path& relative, std::string member, std::string_view repository, const cow_String& name);

 private:
  friend class cmd_Adviser;
  struct Scope {
    const void* obj;
    const cls_ClassMetadata* md;
    std::size_t depth;  // the length of the object's path
  };
  cmd_Path path_;
  std::vector<Scope> scopes_;  // enclosing objects, outermost first (the advised object last)
  const ddr_Model* model_ = nullptr;
  std::size_t modelDepth_ = 0;  // the length of the model's path (1), 0 when there is no model
  std::vector<cmd_Warning>* sink_ = nullptr;
};

// An advisor of one class: the object as a pointer to the root of its family.
using cmd_Advisor = void (*)(const void* obj, cmd_AdviceContext& ctx);

// Registered by a module when it starts, under its own name; an advisor of a class also advises
// every class derived from it. Unregistering removes every advisor the owner registered.
void cmd_RegisterAdvisor(std::string_view owner, std::string_view className, cmd_Advisor advisor);
// A member (string or list of strings) that names an element of the nearest repository of that
// scripting name; a name that leads nowhere is a "dangling-reference".
void cmd_RegisterReference(std::string_view owner, std::string_view className, std::string_view member,
                           std::string_view repository);
void cmd_UnregisterAdvisors(std::string_view owner);

// Typed registration: the advisor takes the class itself.
template <class T, void (*Fn)(const T&, cmd_AdviceContext&)>
void cmd_RegisterAdvisorOf(std::string_view owner) {
  cmd_RegisterAdvisor(owner, T::kClassName, [](const void* obj, cmd_AdviceContext& ctx) {
    if constexpr (requires { typename T::RootClass; })
      Fn(static_cast<const T&>(*static_cast<const typename T::RootClass*>(obj)), ctx);
    else
      Fn(*static_cast<const T*>(obj), ctx);
  });
}

class cmd_Adviser {
 public:
  void AdviseDatabase(const ddr_Database& db);
  // Everything under what `path` names in the database (a model, a repository or an object).
  void AdvisePath(const ddr_Database& db, const cmd_Path& path);
  // An object that no model holds (names it holds are looked up only among its own members).
  void AdviseObject(const void* obj, const cls_ClassMetadata& md);

  std::size_t Visited() const noexcept { return visited_; }
  const std::vector<cmd_Warning>& Warnings() const noexcept { return warnings_; }

 private:
  // What the walk does at an object of one class, found once per class.
  struct Advisors {
    std::vector<cmd_Advisor> fns;
    std::vector<const void*> refs;  // registered references of the class
    // The member objects whose declared class (or a class derived from it) has advice of its own
    // or below it, with their path steps made once; the walk skips the others.
    std::vector<std::pair<const cls_ScriptField*, cow_String>> members;
    bool below = false;  // whether anything at or below an object of the class can be advised
    bool found = false;
  };
  enum class Relevance { kUnknown, kPending, kNo, kYes };
  void Node(const cmd_Node& node);
  void Model(const ddr_Model& model);
  void Repository(const mdl_Repository& repo);
  void Object(const void* obj, const cls_ClassMetadata& md);
  void Members(const void* obj, const Advisors& a);
  const Advisors& AdvisorsOf(const cls_ClassMetadata& md);
  bool Below(const cls_ClassMetadata& md);
  bool FamilyBelow(const cls_ClassMetadata& declared);

  cmd_AdviceContext ctx_;
  std::unordered_map<const cls_ClassMetadata*, Advisors> cache_;
  std::unordered_map<const cls_ClassMetadata*, Relevance> relevance_;
  std::unordered_map<const cls_ClassMetadata*, bool> families_;
  std::size_t visited_ = 0;
  std::vector<cmd_Warning> warnings_;
};
