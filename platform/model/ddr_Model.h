#pragma once
// The model: its containers are the extensions that modules register at start; each new model
// gets its own copy of every registered prototype.
#include <memory>
#include <string_view>
#include <vector>

#include "platform/persist/cls_Uid.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_String.h"
#include "platform/model/mdl_Extension.h"

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;
class mdl_Repository;

class ddr_Model : public mem_Allocated {
 public:
  static constexpr const char* kClassName = "ddr_Model";
  static constexpr int kVersion = 1;
  static constexpr unsigned TypeId() { return (1u << 16) | 1u; }

  using ExtensionHandle = cow_COW<mdl_Extension, cow_Virtual<mdl_Extension>>;

  // A model with a copy of every registered prototype.
  ddr_Model();
  explicit ddr_Model(const cls_ReadVisitor& r);
  void DBWrite(const cls_WriteVisitor& w) const;
  virtual ~ddr_Model() = default;
  virtual ddr_Model* Copy() const { return mem_New<ddr_Model>(*this); }
  static void CowDtor(void* p);
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  const cls_Uid& GetUid() const noexcept { return uid_; }
  friend bool operator==(const ddr_Model& a, const ddr_Model& b);

  // Prototypes. A registration under a repository name already registered replaces it.
  static void RegisterExtension(const mdl_Extension& prototype);
  static void UnRegisterExtension(std::string_view repositoryName);
  static void RegisterAdaptiveMeshControlContainer(const mdl_Extension& prototype);
  static void UnRegisterAdaptiveMeshControlContainer();
  static std::vector<cow_String> RegisteredRepositoryNames();

  // The model's repositories by scripting name, in registration order.
  std::vector<cow_String> RepositoryNames() const;
  const mdl_Repository* FindRepository(std::string_view name) const;
  // For modification: separates the extension first.
  mdl_Repository* ModifyRepository(std::string_view name);
  const std::vector<ExtensionHandle>& Extensions() const noexcept { return extensions_; }

  // Extensions that are one object rather than a repository ("engineeringFeatures"), by scripting
  // name in registration order. The object is the extension itself, as a pointer to the root of
  // its family (mdl_Extension), with the metadata of its own class; its members may be
  // repositories. Null when the model has no such object.
  std::vector<cow_String> ObjectNames() const;
  const void* FindObject(std::string_view name, const cls_ClassMetadata** cls = nullptr) const;
  // For modification: separates the extension first.
  void* ModifyObject(std::string_view name, const cls_ClassMetadata** cls = nullptr);
  // The extension of that name, repository or object, as the model holds it; and its replacement
  // by a handle held before (to undo a change). Replacing refuses a name the model lacks.
  const ExtensionHandle* FindExtension(std::string_view name) const;
  void ReplaceExtension(const ExtensionHandle& extension);

  // Read-only views that a module registers over repositories of the model ("allFields": the
  // fields of two repositories by name). A view is made on request over the model as it stands,
  // is never stored, and refuses every change; its name is never a repository's.
  using ViewFactory = std::unique_ptr<mdl_Repository> (*)(const ddr_Model& model);
  static void RegisterView(std::string_view name, ViewFactory make);
  static void UnRegisterView(std::string_view name);
  static std::vector<cow_String> ViewNames();
  // The view of that name over this model; null when no view has that name.
  std::unique_ptr<mdl_Repository> MakeView(std::string_view name) const;

 private:
  std::vector<ExtensionHandle> extensions_;
  cls_Uid uid_;
};
