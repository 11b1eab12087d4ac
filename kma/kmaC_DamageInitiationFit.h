#pragma once
// How a damage initiation fits the material that holds it: rules that depend on its criterion
// (the material slot that holds it) and on the material's other options. They are no part of
// validation, since an option and a material validate on their own; a check of a whole model
// calls them to give advice.
#include <string_view>

class kmaC_DamageInitiation;
class kmaC_Material;

// At most as many evolutions as the criterion has failure modes (code 75), each failure index
// among them (code 73), an evolution where the criterion needs one (code 71), and a plasticity
// option in the material where the criterion is one of ductile metals (code 72).
void kmaC_AssertDamageInitiationFitsSlot(const kmaC_DamageInitiation& initiation, std::string_view slot,
                                         bool materialHasPlasticity);
// The rules above for every damage initiation the material holds, in slot order.
void kmaC_AssertDamageInitiationsFitMaterial(const kmaC_Material& material);
// The number of failure modes of the criterion of a slot, 1 for the single-mode criteria.
int kmaC_DamageInitiationFailureModes(std::string_view slot);
