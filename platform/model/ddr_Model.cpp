#include "platform/model/ddr_Model.h"

#include <string>

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

const char* NameOf(const mdl_Extension& e) { return e.Repository().RepositoryName(); }

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
    if (!FindRepository(NameOf(proto.Get()))) extensions_.push_back(proto);
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
  for (const auto& p : Prototypes()) names.emplace_back(NameOf(p.Get()));
  return names;
}

std::vector<cow_String> ddr_Model::RepositoryNames() const {
  std::vector<cow_String> names;
  for (const auto& e : extensions_) names.emplace_back(NameOf(e.Get()));
  return names;
}

const mdl_Repository* ddr_Model::FindRepository(std::string_view name) const {
  for (const auto& e : extensions_)
    if (NameOf(e.Get()) == name) return &e.Get().Repository();
  return nullptr;
}

mdl_Repository* ddr_Model::ModifyRepository(std::string_view name) {
  for (auto& e : extensions_)
    if (NameOf(e.Get()) == name) return &e.Get().Repository();
  return nullptr;
}
