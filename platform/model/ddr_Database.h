#pragma once
// A database: models by name, in natural name order.
#include <map>
#include <vector>

#include "platform/base/cow_COW.h"
#include "platform/base/cow_String.h"
#include "platform/model/ddr_Model.h"

class ddr_Database {
 public:
  using ModelHandle = cow_COW<ddr_Model, cow_Virtual<ddr_Model>>;
  using Models = std::map<cow_String, ModelHandle, cow_NaturalLess>;

  ddr_Database() = default;

  const Models& GetModels() const noexcept { return models_; }
  std::vector<cow_String> ModelNames() const;
  const ddr_Model* FindModel(const cow_String& name) const;
  // For modification: separates a shared model first; null when absent.
  ddr_Model* ModifyModel(const cow_String& name);
  // A new model (with a copy of every registered container) under a name not yet taken;
  // refuses an empty or taken name with a nex_CmdException.
  ddr_Model& CreateModel(const cow_String& name);
  // Puts a model under a name, replacing any model of that name.
  void PutModel(const cow_String& name, ModelHandle model);
  bool RemoveModel(const cow_String& name);

  friend bool operator==(const ddr_Database& a, const ddr_Database& b) { return a.models_ == b.models_; }

 private:
  Models models_;
};
