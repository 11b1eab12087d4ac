#include "kma/kmaC_DamageInitiation.h"

#include <algorithm>
#include <vector>

#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_assert.h"

kmaC_DamageInitiation::kmaC_DamageInitiation(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_DamageInitiation* kmaC_DamageInitiation::Copy() const { return mem_New<kmaC_DamageInitiation>(*this); }
void kmaC_DamageInitiation::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_DamageInitiation::operator==(const kmaC_DamageInitiation& o) const { return fw_EqualFields(*this, o); }
bool kmaC_DamageInitiation::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_DamageInitiation&>(o); }
void kmaC_DamageInitiation::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_DamageInitiation>(r); }
void kmaC_DamageInitiation::CowDtor(void* p) { fw_CowDtor<kmaC_DamageInitiation>(p); }

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
