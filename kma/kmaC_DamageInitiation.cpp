#include "kma/kmaC_DamageInitiation.h"

#include "framework/fw_PersistentClassImpl.h"

#include <algorithm>
#include <vector>

#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_assert.h"

kmaC_DamageInitiation::kmaC_DamageInitiation(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

const kmaC_MaterialOptionList* kmaC_DamageInitiation::OptionList(std::string_view member) const {
  return member == "DamageEvolutionList" ? &damageEvolutions.List() : nullptr;
}

kmaC_MaterialOptionList* kmaC_DamageInitiation::ModifyOptionList(std::string_view member) {
  return member == "DamageEvolutionList" ? &damageEvolutions.List() : nullptr;
}

void kmaC_DamageInitiation::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
  kmaC_Assert(damageEvolutions.ElementsFit(), kmaC_NoSuchSubOption);
  std::vector<std::int32_t> seen;
  for (const kmaC_OptionHandle& h : damageEvolutions.List()) {
    h->AssertValid();
    const std::int32_t index = static_cast<const kmaC_DamageEvolution&>(h.Get()).GetFailureIndex();
    kmaC_Assert(std::find(seen.begin(), seen.end(), index) == seen.end(), kmaC_DuplicateFailureIndex);
    seen.push_back(index);
  }
}

template class fw_PersistentClass<kmaC_DamageInitiation, kmaC_MaterialOption>;
