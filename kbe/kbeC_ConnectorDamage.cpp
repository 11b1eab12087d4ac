#include "kbe/kbeC_ConnectorDamage.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"
#include "kbe/kbeC_PotentialIds.h"

kbeC_ConnectorDamage::kbeC_ConnectorDamage(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }
namespace {
struct kbeDamage_InitiationPotentials {
  using C = kbeC_ConnectorDamage;
  static constexpr const char* kList = "initiationPotentials";
  static constexpr const char* kLastId = "lastIniId";
  static std::size_t Count(const C& c) { return c.GetInitiationPotentials().size(); }
  static std::int32_t Last(const C& c) { return c.GetLastIniId(); }
  static void Grow(C& c, std::int32_t n) { c.SetLastIniId(c.GetLastIniId() + n); }
};
struct kbeDamage_EvolutionPotentials {
  using C = kbeC_ConnectorDamage;
  static constexpr const char* kList = "evolutionPotentials";
  static constexpr const char* kLastId = "lastEvoId";
  static std::size_t Count(const C& c) { return c.GetEvolutionPotentials().size(); }
  static std::int32_t Last(const C& c) { return c.GetLastEvoId(); }
  static void Grow(C& c, std::int32_t n) { c.SetLastEvoId(c.GetLastEvoId() + n); }
};
}  // namespace
void kbeC_ConnectorDamage::InitializeMetadata(cls_ClassRegistrar& r) {
  kbeC_InitializePotentialIdMetadata<kbeC_ConnectorDamage, kbeDamage_InitiationPotentials, kbeDamage_EvolutionPotentials>(r);
}
const kbeC_ConnectorOptions& kbeC_ConnectorDamage::GetInitiationOptions() const { return kbeC_Present(initiationOptions, "initiationOptions"); }
kbeC_ConnectorOptions& kbeC_ConnectorDamage::ModifyInitiationOptions() { return kbeC_Present(initiationOptions, "initiationOptions"); }
const kbeC_ConnectorOptions& kbeC_ConnectorDamage::GetEvolutionOptions() const { return kbeC_Present(evolutionOptions, "evolutionOptions"); }
kbeC_ConnectorOptions& kbeC_ConnectorDamage::ModifyEvolutionOptions() { return kbeC_Present(evolutionOptions, "evolutionOptions"); }

void kbeC_ConnectorDamage::AppendInitiationPotential(const kbeC_ConnectorPotential& p) {
  initiationPotentials.Append(cow_COW<kbeC_ConnectorPotential>(p));
  ++lastIniId;
}

void kbeC_ConnectorDamage::AppendEvolutionPotential(const kbeC_ConnectorPotential& p) {
  evolutionPotentials.Append(cow_COW<kbeC_ConnectorPotential>(p));
  ++lastEvoId;
}

// The damage variable is the first column of a tabular evolution; it starts at zero in the first
// row and grows, so a zero further down is an error as well as a value outside 0 to 1.
void kbeC_ConnectorDamage::AssertValid() const {
  for (std::int32_t c : components) kbeC_Assert(kbeC_InRange(c), kbeC_ComponentOutOfRange);
  if (useAffected) {
    kbeC_Assert(!affectedComponents.empty(), kbeC_NoAffectedComponents);
    for (std::int32_t c : affectedComponents) kbeC_Assert(kbeC_InRange(c), kbeC_AffectedComponentOutOfRange);
  }
  kbeC_Assert(initiationPotentialExponent > 0, kbeC_PotentialExponentNotPositive);
  kbeC_CheckPotentials(initiationPotentials);
  if (evolution) {
    kbeC_Assert(evolutionPotentialExponent > 0, kbeC_PotentialExponentNotPositive);
    kbeC_CheckPotentials(evolutionPotentials);
    if (softening == SofteningEnm::TABULAR && evolutionTable.Columns() > 0) {
      for (std::size_t r = 0; r < evolutionTable.Rows(); ++r)
        kbeC_Assert(evolutionTable(r, 0) >= 0 && evolutionTable(r, 0) <= 1, kbeC_DamageValueOutOfRange);
      for (std::size_t r = 1; r < evolutionTable.Rows(); ++r)
        kbeC_Assert(evolutionTable(r, 0) != 0, kbeC_DamageZeroOutsideFirstRow);
    }
  }
  if (!initiationOptions.IsNull()) {
    initiationOptions->AssertValid();
    kbeC_AssertContent(criterion == CriterionEnm::PLASTIC_MOTION || initiationOptions->RateOptionsAtDefaults(),
                       kbeC_RateOptionsNotAllowed, "Damage; initiation criteria must be PLASTIC_MOTION");
  }
  if (!evolutionOptions.IsNull()) {
    evolutionOptions->AssertValid();
    kbeC_AssertContent(evolutionOptions->RateOptionsAtDefaults(), kbeC_RateOptionsNotAllowed, "Damage; evolution");
  }
}

template class fw_PersistentClass<kbeC_ConnectorDamage, kbeC_ConnectorBehaviorOption>;
