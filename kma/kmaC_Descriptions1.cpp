#include "kma/kmaC_Descriptions.h"
#include "kma/kmaC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKmaDescAcousticMedium[] = {
    {"bulkModulus", "Bulk modulus"},
    {"volumetricDrag", "Volumetric drag"},
};
constexpr int kKmaCodesAcousticMedium[] = {0};
constexpr int kKmaCodesAnnealTemperature[] = {0};
constexpr cls_MemberDescription kKmaDescBiaxialTestData[] = {
    {"smoothing", "Smoothing"},
    {"lateralNominalStrain", "Lateral nominal strain"},
};
constexpr int kKmaCodesBiaxialTestData[] = {0};
constexpr cls_MemberDescription kKmaDescBrittleCracking[] = {
    {"type", "Type"},
    {"shearRetention", "Shear retention"},
};
constexpr int kKmaCodesBrittleCracking[] = {0};
constexpr cls_MemberDescription kKmaDescCapCreep[] = {
    {"law", "Law"},
};
constexpr int kKmaCodesCapCreep[] = {0};
constexpr cls_MemberDescription kKmaDescCapCreepCohesion[] = {
    {"law", "Law"},
    {"time", "Time"},
};
constexpr int kKmaCodesCapCreepCohesion[] = {0};
constexpr cls_MemberDescription kKmaDescCapCreepConsolidation[] = {
    {"law", "Law"},
    {"time", "Time"},
};
constexpr int kKmaCodesCapCreepConsolidation[] = {0};
constexpr cls_MemberDescription kKmaDescCapPlasticity[] = {
    {"capCreepCohesion", "Cap creep cohesion"},
    {"capCreepConsolidation", "Cap creep consolidation"},
    {"capCreep", "Cap creep"},
};
constexpr int kKmaCodesCapPlasticity[] = {0};
constexpr int kKmaCodesCastIronPlasticity[] = {0};
constexpr cls_MemberDescription kKmaDescClayPlasticity[] = {
    {"hardening", "Hardening"},
};
constexpr int kKmaCodesClayPlasticity[] = {0};
constexpr int kKmaCodesConcrete[] = {0};
constexpr int kKmaCodesConcreteDamagedPlasticity[] = {0, 8, 54, 55};
constexpr cls_MemberDescription kKmaDescConductivity[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesConductivity[] = {0};
constexpr cls_MemberDescription kKmaDescCreep[] = {
    {"law", "Law"},
    {"time", "Time"},
};
constexpr int kKmaCodesCreep[] = {0};
constexpr cls_MemberDescription kKmaDescCrushStress[] = {
    {"crushStressVelocityFactor", "Crush stress velocity factor"},
};
constexpr int kKmaCodesCrushStress[] = {0};
constexpr int kKmaCodesCrushStressVelocityFactor[] = {0};
constexpr cls_MemberDescription kKmaDescCyclicHardening[] = {
    {"parameters", "Parameters"},
};
constexpr int kKmaCodesCyclicHardening[] = {0};
constexpr cls_MemberDescription kKmaDescDamageEvolution[] = {
    {"type", "Type"},
    {"softening", "Softening"},
    {"mixedModeBehavior", "Mixed mode behavior"},
    {"modeMixRatio", "Mode mix ratio"},
    {"power", "Power"},
    {"degradation", "Degradation"},
    {"failureIndex", "Failure index"},
};
constexpr int kKmaCodesDamageEvolution[] = {0, 38};
constexpr cls_MemberDescription kKmaDescDamageInitiation[] = {
    {"definition", "Definition"},
    {"omega", "Omega"},
    {"tolerance", "Tolerance"},
    {"numberImperfections", "Number imperfections"},
    {"ks", "Ks"},
    {"alpha", "Alpha"},
    {"direction", "Direction"},
    {"position", "Position"},
    {"feq", "Feq"},
    {"fnn", "Fnn"},
    {"fnt", "Fnt"},
    {"frequency", "Frequency"},
    {"DamageEvolutionList", "Damage evolution list"},
};
constexpr int kKmaCodesDamageInitiation[] = {0, 11, 74};
constexpr cls_MemberDescription kKmaDescDamping[] = {
    {"alpha", "Alpha"},
    {"beta", "Beta"},
    {"composite", "Composite"},
    {"structural", "Structural"},
};
constexpr int kKmaCodesDamping[] = {41};
constexpr cls_ClassDescription kKmaDescriptions1[] = {
    {"kmaC_AcousticMedium",
     "Acoustic medium: bulk modulus and volumetric drag of a fluid.",
     kKmaDescAcousticMedium, nullptr, kKmaCodesAcousticMedium},
    {"kmaC_AnnealTemperature",
     "Annealing of a plastic option: above the anneal temperature the plastic strain is set to "
     "zero.",
     {}, nullptr, kKmaCodesAnnealTemperature},
    {"kmaC_BiaxialTestData",
     "Equibiaxial test data: measured nominal stress against nominal strain, for a Mullins effect "
     "(the unloading curves) or a hyperelastic or hyperfoam fit.",
     kKmaDescBiaxialTestData, nullptr, kKmaCodesBiaxialTestData},
    {"kmaC_BrittleCracking",
     "Brittle cracking: the cracking stress and the post-cracking tension stiffening.",
     kKmaDescBrittleCracking, nullptr, kKmaCodesBrittleCracking},
    {"kmaC_CapCreep",
     "Creep of a cap plasticity material with one law for both mechanisms (the form before "
     "cohesion and consolidation creep were told apart): the law and its data; a user law reads "
     "no table.",
     kKmaDescCapCreep, nullptr, kKmaCodesCapCreep},
    {"kmaC_CapCreepCohesion",
     "Cohesion (deviatoric) creep of a cap plasticity material: the law, its time measure and its "
     "data; a user law reads no table.",
     kKmaDescCapCreepCohesion, nullptr, kKmaCodesCapCreepCohesion},
    {"kmaC_CapCreepConsolidation",
     "Consolidation (volumetric) creep of a cap plasticity material: the law, its time measure "
     "and its data; a user law reads no table.",
     kKmaDescCapCreepConsolidation, nullptr, kKmaCodesCapCreepConsolidation},
    {"kmaC_CapPlasticity",
     "Modified Drucker-Prager cap plasticity: cohesion, friction angle, cap eccentricity, initial "
     "yield surface position, transition parameter and flow stress ratio per row.",
     kKmaDescCapPlasticity, nullptr, kKmaCodesCapPlasticity},
    {"kmaC_CastIronPlasticity",
     "Gray cast iron plasticity: the plastic Poisson's ratio in tension.",
     {}, nullptr, kKmaCodesCastIronPlasticity},
    {"kmaC_ClayPlasticity",
     "Critical state clay plasticity: exponential or tabular hardening.",
     kKmaDescClayPlasticity, nullptr, kKmaCodesClayPlasticity},
    {"kmaC_Concrete",
     "Smeared crack concrete: compressive yield stress against plastic strain.",
     {}, nullptr, kKmaCodesConcrete},
    {"kmaC_ConcreteDamagedPlasticity",
     "Concrete damaged plasticity: dilation angle, eccentricity, fb0/fc0, K and viscosity per row.",
     {}, nullptr, kKmaCodesConcreteDamagedPlasticity},
    {"kmaC_Conductivity",
     "Thermal conductivity: one, three or six coefficients by the symmetry of the type.",
     kKmaDescConductivity, nullptr, kKmaCodesConductivity},
    {"kmaC_Creep",
     "Creep: the law, its time measure and the data table; a user law reads no table.",
     kKmaDescCreep, nullptr, kKmaCodesCreep},
    {"kmaC_CrushStress",
     "Crush stress of a crushable material (a core or an energy absorber): the stress at which it "
     "crushes, with an optional velocity-factor sub-option for its rate dependence.",
     kKmaDescCrushStress, nullptr, kKmaCodesCrushStress},
    {"kmaC_CrushStressVelocityFactor",
     "The rate dependence of a crush stress: a factor on the crush stress against the crushing "
     "velocity.",
     {}, nullptr, kKmaCodesCrushStressVelocityFactor},
    {"kmaC_CycledPlastic",
     "Cycled yield data of a plastic option under the ORNL rules: the yield stress against "
     "plastic strain after cycling, possibly temperature dependent.",
     {}},
    {"kmaC_CyclicHardening",
     "Isotropic part of combined hardening: the yield surface size against equivalent plastic "
     "strain, or the parameters of the exponential law (initial yield stress, saturation value, "
     "rate).",
     kKmaDescCyclicHardening, nullptr, kKmaCodesCyclicHardening},
    {"kmaC_DamageEvolution",
     "Damage evolution after the onset of damage, an element of the damage-evolution list of a "
     "damage initiation: what drives it (effective displacement or fracture energy), the "
     "softening law, how mixed modes combine, how damage from several criteria combines, and "
     "which failure mode of a multi-mode criterion it belongs to (`failureIndex`, from 1).",
     kKmaDescDamageEvolution, nullptr, kKmaCodesDamageEvolution},
    {"kmaC_DamageInitiation",
     "Onset of damage by one criterion (the slot of the material names it): the criterion's data "
     "table, the forming-limit definition, the direction and position of evaluation and the "
     "numerical controls, and the list of damage evolutions that follow the onset (one per "
     "failure mode of the criterion).",
     kKmaDescDamageInitiation, nullptr, kKmaCodesDamageInitiation},
    {"kmaC_Damping",
     "Rayleigh and structural damping factors of a material.",
     kKmaDescDamping, nullptr, kKmaCodesDamping},
};
}  // namespace

std::span<const cls_ClassDescription> kmaC_Descriptions1Table() { return kKmaDescriptions1; }

void kmaC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kmaC_ErrorMessage(static_cast<kmaC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kma", kmaC_Descriptions1Table(), messages);
  cls_RegisterDescriptions("kma", kmaC_Descriptions2Table(), messages);
  cls_RegisterDescriptions("kma", kmaC_Descriptions3Table(), messages);
  cls_RegisterDescriptions("kma", kmaC_Descriptions4Table(), messages);
  cls_RegisterDescriptions("kma", kmaC_Descriptions5Table(), messages);
}
void kmaC_UnregisterDescriptions() { cls_UnregisterDescriptions("kma"); }
