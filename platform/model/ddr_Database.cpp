#include "platform/model/ddr_Database.h"

#include "platform/base/nex_Exception.h"

std::vector<cow_String> ddr_Database::ModelNames() const {
  std::vector<cow_String> names;
  for (const auto& kv : models_) names.push_back(kv.first);
  return names;
}

const ddr_Model* ddr_Database::FindModel(const cow_String& name) const {
  auto it = models_.find(name);
  return it == models_.end() ? nullptr : &it->second.Get();
}

ddr_Model* ddr_Database::ModifyModel(const cow_String& name) {
  auto it = models_.find(name);
  return it == models_.end() ? nullptr : &it->second.Get();
}

ddr_Model& ddr_Database::CreateModel(const cow_String& name) {
  if (name.empty()) nex_ThrowCmd("A model needs a name");
  if (models_.count(name)) nex_ThrowCmd("A model named \"" + name.str() + "\" already exists");
  auto it = models_.emplace(name, ModelHandle(mem_New<ddr_Model>())).first;
  return it->second.Get();
}

void ddr_Database::PutModel(const cow_String& name, ModelHandle model) {
  if (name.empty()) nex_ThrowCmd("A model needs a name");
  models_.insert_or_assign(name, std::move(model));
}

bool ddr_Database::RemoveModel(const cow_String& name) { return models_.erase(name) != 0; }
