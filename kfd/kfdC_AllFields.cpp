#include "kfd/kfdC_AllFields.h"

#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "platform/model/ddr_Model.h"

namespace {
template <class Container>
const typename Container::Map* RepositoryOf(const ddr_Model& model) {
  return dynamic_cast<const typename Container::Map*>(model.FindRepository(Container::Names::kRepositoryName));
}
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
