#include "kma/kmaC_DamageEvolution.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_DamageEvolution::kmaC_DamageEvolution(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_DamageEvolution* kmaC_DamageEvolution::Copy() const { return mem_New<kmaC_DamageEvolution>(*this); }
void kmaC_DamageEvolution::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_DamageEvolution::operator==(const kmaC_DamageEvolution& o) const { return fw_EqualFields(*this, o); }
bool kmaC_DamageEvolution::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_DamageEvolution&>(o); }
void kmaC_DamageEvolution::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_DamageEvolution>(r); }
void kmaC_DamageEvolution::CowDtor(void* p) { fw_CowDtor<kmaC_DamageEvolution>(p); }

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
