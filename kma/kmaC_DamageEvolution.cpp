#include "kma/kmaC_DamageEvolution.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_DamageEvolution::kmaC_DamageEvolution(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

// Tabular softening is given as damage against displacement, so it cannot be energy-driven; the
// power law and the BK law combine fracture energies, so they need an energy-driven evolution.
void kmaC_DamageEvolution::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  const bool energyLaw =
      mixedModeBehavior == MixedModeBehaviorEnm::POWER_LAW || mixedModeBehavior == MixedModeBehaviorEnm::BK;
  kmaC_Assert(!(type == TypeEnm::ENERGY && softening == SofteningEnm::TABULAR) &&
                  !(type == TypeEnm::DISPLACEMENT && energyLaw),
              kmaC_DamageCombinationInvalid);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_DamageEvolution, kmaC_MaterialOption>;
