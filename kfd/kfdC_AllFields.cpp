#include "kfd/kfdC_AllFields.h"

#include <string>

#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "platform/base/nex_Exception.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
template <class Container>
const typename Container::Map* RepositoryOf(const ddr_Model& model) {
  return dynamic_cast<const typename Container::Map*>(model.FindRepository(Container::Names::kRepositoryName));
}

// Names, not copies: the view lives only as long as the walk that made it, over a model that does
// not change meanwhile.
class AllFieldsView final : public mdl_Repository {
 public:
  explicit AllFieldsView(const ddr_Model& model) : model_(model) {}
  const char* RepositoryName() const override { return kfdC_Field::kCollectionName; }
  const cls_ClassMetadata& ElementClass() const override { return cls_MetadataOf(kfdC_Field::kClassName); }
  std::vector<cow_String> Keys() const override {
    std::vector<cow_String> keys;
    for (const auto& [name, field] : kfdC_AllFields(model_))
      if (kfdC_FindField(model_, name) == field) keys.push_back(name);  // a name in both: the one found
    return keys;
  }
  bool Contains(const cow_String& key) const override { return kfdC_FindField(model_, key) != nullptr; }
  const void* Find(const cow_String& key, const cls_ClassMetadata** cls) const override {
    const kfdC_Field* f = kfdC_FindField(model_, key);
    if (f && cls) *cls = &cls_MetadataOf(f->ClassTypeId());
    return f;
  }
  void* Modify(const cow_String&, const cls_ClassMetadata**) override { Refuse(); }
  void InsertNew(const cow_String&, void* owned) override {
    ElementClass().Destroy(owned);
    Refuse();
  }
  bool RemoveKey(const cow_String&) override { Refuse(); }

 private:
  [[noreturn]] static void Refuse() {
    nex_ThrowCmd(std::string("\"") + kfdC_Field::kCollectionName + "\" shows the fields read-only; change a field in \"" +
                 kfdC_AnalyticalFieldContainer::Names::kRepositoryName + "\" or \"" +
                 kfdC_DiscreteFieldContainer::Names::kRepositoryName + "\"");
  }
  const ddr_Model& model_;
};
}  // namespace

std::vector<std::pair<cow_String, const kfdC_Field*>> kfdC_AllFields(const ddr_Model& model) {
  std::vector<std::pair<cow_String, const kfdC_Field*>> out;
  if (const auto* analytical = RepositoryOf<kfdC_AnalyticalFieldContainer>(model))
    for (const auto& [name, h] : analytical->Items()) out.emplace_back(name, &h.Get());
  if (const auto* discrete = RepositoryOf<kfdC_DiscreteFieldContainer>(model))
    for (const auto& [name, h] : discrete->Items()) out.emplace_back(name, &h.Get());
  return out;
}

const kfdC_Field* kfdC_FindField(const ddr_Model& model, const cow_String& name) {
  if (const auto* analytical = RepositoryOf<kfdC_AnalyticalFieldContainer>(model))
    if (const kfdC_Field* f = analytical->ConstGet(name)) return f;
  if (const auto* discrete = RepositoryOf<kfdC_DiscreteFieldContainer>(model))
    if (const kfdC_Field* f = discrete->ConstGet(name)) return f;
  return nullptr;
}

std::unique_ptr<mdl_Repository> kfdC_AllFieldsView(const ddr_Model& model) {
  return std::make_unique<AllFieldsView>(model);
}
