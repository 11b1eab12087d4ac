#include "platform/model/ddr_Model.h"

#include <string>

#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/cls_TypedMetadata.h"
#include "platform/model/mdl_Repository.h"
#include "platform/base/nex_Exception.h"

namespace {
using Prototype = ddr_Model::ExtensionHandle;

std::vector<Prototype>& Prototypes() {
  static std::vector<Prototype> prototypes;
  return prototypes;
}

struct View {
  cow_String name;
  ddr_Model::ViewFactory make;
};

std::vector<View>& Views() {
  static std::vector<View> views;
  return views;
}

const char* NameOf(const mdl_Extension& e) { return e.ExtensionName(); }

void WriteExtension(const void* p, const cls_WriteVisitor& w) { static_cast<const mdl_Extension*>(p)->DBWrite(w); }
}  // namespace

ddr_Model::ddr_Model() : extensions_(Prototypes()) {}

ddr_Model::ddr_Model(const cls_ReadVisitor& r) : uid_(r.GetUid()) {
  r.ReadObjectList("extensions", [&](std::size_t, const cls_ReadVisitor* e) {
    if (!e) nex_ThrowCmd("A stored model holds a null extension");
    extensions_.emplace_back(cls_NewFromReader<mdl_Extension>(*e));
  });
  // Containers registered since the file was written start empty.
  for (const auto& proto : Prototypes())
    if (!FindExtension(NameOf(proto.Get()))) extensions_.push_back(proto);
}

void ddr_Model::DBWrite(const cls_WriteVisitor& w) const {
  if (!w.StartWrite(TypeId(), uid_)) return;
  std::vector<const void*> objs;
  for (const auto& e : extensions_) objs.push_back(&e.Get());
  w.WriteObjectList("extensions", objs, &WriteExtension);
}

void ddr_Model::CowDtor(void* p) { cow_Destroy(static_cast<ddr_Model*>(p)); }

void ddr_Model::InitializeMetadata(cls_ClassRegistrar& registrar) {
  static const cls_AttributeSpec kAttrs[] = {{0, "extensions", cls_AttrObjectList, cls_List1D}};
  cls_RegisterTyped<ddr_Model>(registrar, kAttrs);
}

bool operator==(const ddr_Model& a, const ddr_Model& b) {
  if (a.uid_ != b.uid_ || a.extensions_.size() != b.extensions_.size()) return false;
  for (std::size_t i = 0; i < a.extensions_.size(); ++i)
    if (!a.extensions_[i].Get().Equals(b.extensions_[i].Get())) return false;
  return true;
}

void ddr_Model::RegisterExtension(const mdl_Extension& prototype) {
  auto& protos = Prototypes();
  for (auto& p : protos) {
    if (std::string_view(NameOf(p.Get())) == NameOf(prototype)) {
      p = Prototype(prototype.Copy());
      return;
    }
  }
  protos.emplace_back(prototype.Copy());
}

void ddr_Model::UnRegisterExtension(std::string_view name) {
  auto& protos = Prototypes();
  for (auto it = protos.begin(); it != protos.end(); ++it) {
    if (NameOf(it->Get()) == name) {
      protos.erase(it);
      return;
    }
  }
}

void ddr_Model::RegisterAdaptiveMeshControlContainer(const mdl_Extension& prototype) { RegisterExtension(prototype); }

void ddr_Model::UnRegisterAdaptiveMeshControlContainer() { UnRegisterExtension("adaptiveMeshControls"); }

std::vector<cow_String> ddr_Model::RegisteredRepositoryNames() {
  std::vector<cow_String> names;
  for (const auto& p : Prototypes())
    if (p.Get().Repository()) names.emplace_back(NameOf(p.Get()));
  return names;
}

std::vector<cow_String> ddr_Model::RepositoryNames() const {
  std::vector<cow_String> names;
  for (const auto& e : extensions_)
    if (e.Get().Repository()) names.emplace_back(NameOf(e.Get()));
  return names;
}

const mdl_Repository* ddr_Model::FindRepository(std::string_view name) const {
  const ExtensionHandle* e = FindExtension(name);
  return e ? e->Get().Repository() : nullptr;
}

mdl_Repository* ddr_Model::ModifyRepository(std::string_view name) {
  for (auto& e : extensions_)
    if (NameOf(e.Get()) == name) return e.Get().Repository();
  return nullptr;
}

std::vector<cow_String> ddr_Model::ObjectNames() const {
  std::vector<cow_String> names;
  for (const auto& e : extensions_)
    if (!e.Get().Repository()) names.emplace_back(NameOf(e.Get()));
  return names;
}

const void* ddr_Model::FindObject(std::string_view name, const cls_ClassMetadata** cls) const {
  const ExtensionHandle* e = FindExtension(name);
  if (!e || e->Get().Repository()) return nullptr;
  if (cls) *cls = &cls_MetadataOf(e->Get().ClassTypeId());
  return &e->Get();
}

void* ddr_Model::ModifyObject(std::string_view name, const cls_ClassMetadata** cls) {
  if (!FindObject(name, cls)) return nullptr;
  for (auto& e : extensions_)
    if (NameOf(e.Get()) == name) return &e.Get();
  return nullptr;
}

const ddr_Model::ExtensionHandle* ddr_Model::FindExtension(std::string_view name) const {
  for (const auto& e : extensions_)
    if (NameOf(e.Get()) == name) return &e;
  return nullptr;
}

void ddr_Model::ReplaceExtension(const ExtensionHandle& extension) {
  for (auto& e : extensions_) {
    if (std::string_view(NameOf(e.Get())) == NameOf(extension.Get())) {
      e = extension;
      return;
    }
  }
  nex_ThrowCmd(std::string("The model has no extension \"") + NameOf(extension.Get()) + "\" to replace");
}

void ddr_Model::RegisterView(std::string_view name, ViewFactory make) {
  for (auto& v : Views()) {
    if (v.name.view() == name) {
      v.make = make;
      return;
    }
  }
  Views().push_back(View{cow_String(name), make});
}

void ddr_Model::UnRegisterView(std::string_view name) {
  auto& views = Views();
  for (auto it = views.begin(); it != views.end(); ++it) {
    if (it->name.view() == name) {
      views.erase(it);
      return;
    }
  }
}

std::vector<cow_String> ddr_Model::ViewNames() {
  std::vector<cow_String> names;
  for (const auto& v : Views()) names.push_back(v.name);
  return names;
}

std::unique_ptr<mdl_Repository> ddr_Model::MakeView(std::string_view name) const {
  for (const auto& v : Views())
    if (v.name.view() == name) return v.make(*this);
  return nullptr;
}

const char* mdl_Extension::ExtensionName() const {
  const mdl_Repository* r = Repository();
  return r ? r->RepositoryName() : "";
}
