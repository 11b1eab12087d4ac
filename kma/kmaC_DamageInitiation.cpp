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

namespace {
bool IsOneOf(std::string_view slot, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), slot) != names.end();
}
// The criteria of fibre-reinforced composites: four failure modes (fibre and matrix, each in
// tension and in compression), and no use without an evolution of the modes.
bool IsCompositeCriterion(std::string_view slot) {
  return IsOneOf(slot, {"hashinDamageInitiation", "laRC05DamageInitiation"});
}
// The criteria of ductile metals, stated in terms of the equivalent plastic strain.
bool IsPlasticityCriterion(std::string_view slot) {
  return IsOneOf(slot, {"ductileDamageInitiation", "fldDamageInitiation", "flsdDamageInitiation",
                        "johnsonCookDamageInitiation", "mkDamageInitiation", "msfldDamageInitiation",
                        "shearDamageInitiation", "hosfordCoulombDamageInitiation"});
}
}  // namespace

int kmaC_DamageInitiation::FailureModes(std::string_view slot) { return IsCompositeCriterion(slot) ? 4 : 1; }

void kmaC_DamageInitiation::AssertValidInSlot(std::string_view slot, bool materialHasPlasticity) const {
  const int modes = FailureModes(slot);
  kmaC_Assert(damageEvolutions.size() <= static_cast<std::size_t>(modes), kmaC_TooManyDamageEvolutions);
  for (const kmaC_OptionHandle& h : damageEvolutions.List()) {
    const std::int32_t index = static_cast<const kmaC_DamageEvolution&>(h.Get()).GetFailureIndex();
    kmaC_Assert(index >= 1 && index <= modes, kmaC_FailureIndexTooLarge);
  }
  if (IsCompositeCriterion(slot)) kmaC_Assert(!damageEvolutions.empty(), kmaC_DamageEvolutionRequired);
  if (IsPlasticityCriterion(slot)) kmaC_Assert(materialHasPlasticity, kmaC_InitiationNeedsPlasticity);
}
