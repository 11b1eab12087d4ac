#include "kma/kmaC_DamageInitiationFit.h"

#include <algorithm>
#include <initializer_list>
#include <tuple>
#include <type_traits>

#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_Material.h"
#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_assert.h"

namespace {
bool kmaFit_IsOneOf(std::string_view slot, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), slot) != names.end();
}
// The criteria of fibre-reinforced composites: four failure modes (fibre and matrix, each in
// tension and in compression), and no use without an evolution of the modes.
bool kmaFit_IsCompositeCriterion(std::string_view slot) {
  return kmaFit_IsOneOf(slot, {"hashinDamageInitiation", "laRC05DamageInitiation"});
}
// The criteria of ductile metals, stated in terms of the equivalent plastic strain.
bool kmaFit_IsPlasticityCriterion(std::string_view slot) {
  return kmaFit_IsOneOf(slot, {"ductileDamageInitiation", "fldDamageInitiation", "flsdDamageInitiation",
                               "johnsonCookDamageInitiation", "mkDamageInitiation", "msfldDamageInitiation",
                               "shearDamageInitiation", "hosfordCoulombDamageInitiation"});
}
template <class M>
struct kmaFit_IsInitiationSlot : std::false_type {};
template <>
struct kmaFit_IsInitiationSlot<kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation>> : std::true_type {};
}  // namespace

int kmaC_DamageInitiationFailureModes(std::string_view slot) { return kmaFit_IsCompositeCriterion(slot) ? 4 : 1; }

void kmaC_AssertDamageInitiationFitsSlot(const kmaC_DamageInitiation& initiation, std::string_view slot,
                                         bool materialHasPlasticity) {
  const int modes = kmaC_DamageInitiationFailureModes(slot);
  const kmaC_MaterialOptionList* evolutions = initiation.OptionList("DamageEvolutionList");
  kmaC_Assert(evolutions->size() <= static_cast<std::size_t>(modes), kmaC_TooManyDamageEvolutions);
  for (const kmaC_OptionHandle& h : *evolutions) {
    const std::int32_t index = static_cast<const kmaC_DamageEvolution&>(h.Get()).GetFailureIndex();
    kmaC_Assert(index >= 1 && index <= modes, kmaC_FailureIndexTooLarge);
  }
  if (kmaFit_IsCompositeCriterion(slot)) kmaC_Assert(!evolutions->empty(), kmaC_DamageEvolutionRequired);
  if (kmaFit_IsPlasticityCriterion(slot)) kmaC_Assert(materialHasPlasticity, kmaC_InitiationNeedsPlasticity);
}

void kmaC_AssertDamageInitiationsFitMaterial(const kmaC_Material& material) {
  const bool hasPlasticity = material.GetOption("plastic") || material.GetOption("druckerPrager") || material.GetOption("foam");
  std::apply(
      [&](const auto&... f) {
        auto one = [&](const auto& field) {
          using M = typename fw_MemberType<std::remove_cvref_t<decltype(field)>>::type;
          if constexpr (kmaFit_IsInitiationSlot<M>::value)
            if (const kmaC_MaterialOption* o = (material.*(field.member)).ConstGet())
              kmaC_AssertDamageInitiationFitsSlot(static_cast<const kmaC_DamageInitiation&>(*o), field.scriptName, hasPlasticity);
        };
        (one(f), ...);
      },
      kmaC_Material::Fields());
}
