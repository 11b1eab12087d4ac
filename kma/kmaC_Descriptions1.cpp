#include "kma/kmaC_Descriptions.h"
#include "kma/kmaC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKmaDescAcousticMedium[] = {
    {"bulkModulus", "Whether the table gives the fluid's bulk modulus"},
    {"volumetricDrag", "Whether the table gives a volumetric drag coefficient"},
};
constexpr int kKmaCodesAcousticMedium[] = {0, 23};
constexpr int kKmaCodesAnnealTemperature[] = {0, 23};
constexpr cls_MemberDescription kKmaDescBiaxialTestData[] = {
    {"smoothing", "Points each side of a data point used to smooth the data (0: no smoothing)"},
    {"lateralNominalStrain",
     "Whether the table adds the measured lateral nominal strain as a third column"},
    {"table",
     "Nominal stress, nominal strain (and lateral nominal strain with lateralNominalStrain); "
     "then temperature and field-variable columns"},
};
constexpr int kKmaCodesBiaxialTestData[] = {0, 23};
constexpr cls_MemberDescription kKmaDescBrittleCracking[] = {
    {"type",
     "Form of the post-cracking tension stiffening data: STRESS, STRAIN or GFI (mode I fracture "
     "energy)"},
    {"shearRetention", "Post-cracking shear retention sub-option"},
};
constexpr int kKmaCodesBrittleCracking[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCapCreep[] = {
    {"law", "Creep law; USER takes it from a user routine and reads no table"},
};
constexpr int kKmaCodesCapCreep[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCapCreepCohesion[] = {
    {"law", "Creep law; USER takes it from a user routine and reads no table"},
    {"time", "Time measure of a time-hardening law: TOTAL (analysis time) or CREEP (creep time)"},
};
constexpr int kKmaCodesCapCreepCohesion[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCapCreepConsolidation[] = {
    {"law", "Creep law; USER takes it from a user routine and reads no table"},
    {"time", "Time measure of a time-hardening law: TOTAL (analysis time) or CREEP (creep time)"},
};
constexpr int kKmaCodesCapCreepConsolidation[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCapPlasticity[] = {
    {"capCreepCohesion", "Cohesion (deviatoric) creep sub-option"},
    {"capCreepConsolidation", "Consolidation (volumetric) creep sub-option"},
    {"capCreep", "Creep sub-option with one law for both mechanisms (the older form)"},
    {"table",
     "Cohesion, friction angle, cap eccentricity, initial yield surface position, transition "
     "parameter, flow stress ratio; then temperature and field-variable columns"},
};
constexpr int kKmaCodesCapPlasticity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCastIronPlasticity[] = {
    {"table", "Plastic Poisson's ratio in tension; then temperature and field-variable columns"},
};
constexpr int kKmaCodesCastIronPlasticity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescClayPlasticity[] = {
    {"hardening",
     "Form of the hardening data: EXPONENTIAL (its parameters) or TABULAR (yield stress against "
     "volumetric plastic strain)"},
};
constexpr int kKmaCodesClayPlasticity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescConcrete[] = {
    {"table",
     "Compressive yield stress, plastic strain; then temperature and field-variable columns"},
};
constexpr int kKmaCodesConcrete[] = {0, 23};
constexpr cls_MemberDescription kKmaDescConcreteDamagedPlasticity[] = {
    {"table",
     "Per row: dilation angle (degrees), eccentricity (at least 0), fb0/fc0, K (above 0.5, at most "
     "1), viscosity; then temperature and field-variable columns"},
};
constexpr int kKmaCodesConcreteDamagedPlasticity[] = {0, 23, 8, 54, 55};
constexpr cls_MemberDescription kKmaDescConductivity[] = {
    {"type",
     "Symmetry of the conductivity: 1 (ISOTROPIC), 3 (ORTHOTROPIC) or 6 (ANISOTROPIC) values per "
     "row"},
};
constexpr int kKmaCodesConductivity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCreep[] = {
    {"law", "Creep law; USER takes it from a user routine and reads no table"},
    {"time", "Time measure of a time-hardening law: TOTAL (analysis time) or CREEP (creep time)"},
};
constexpr int kKmaCodesCreep[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCrushStress[] = {
    {"crushStressVelocityFactor", "Rate dependence sub-option (absent: rate independent)"},
};
constexpr int kKmaCodesCrushStress[] = {0, 23};
constexpr int kKmaCodesCrushStressVelocityFactor[] = {0, 23};
constexpr cls_MemberDescription kKmaDescCyclicHardening[] = {
    {"parameters",
     "Whether the table gives the exponential law's parameters instead of yield surface size "
     "against plastic strain"},
    {"table",
     "Yield surface size against equivalent plastic strain, or with parameters: initial yield "
     "stress, saturation value, rate; then temperature and field-variable columns"},
};
constexpr int kKmaCodesCyclicHardening[] = {0, 23};
constexpr cls_MemberDescription kKmaDescDamageEvolution[] = {
    {"type",
     "What the evolution is given by: DISPLACEMENT (effective displacement at failure) or ENERGY "
     "(fracture energy)"},
    {"softening",
     "Shape of the softening; TABULAR (damage against displacement) only with DISPLACEMENT"},
    {"mixedModeBehavior",
     "How the modes combine; the energy laws POWER_LAW and BK only with ENERGY"},
    {"modeMixRatio",
     "Measure of the mode mix: ENERGY (ratio of energies) or TRACTION (ratio of tractions)"},
    {"power", "Exponent of the power law or of the BK law (1.0: linear interaction)"},
    {"degradation",
     "How this damage combines with that of other criteria: MAXIMUM (the largest counts) or "
     "MULTIPLICATIVE"},
    {"failureIndex",
     "Failure mode of the criterion it belongs to (from 1; up to 4 for Hashin and LaRC05, else 1)"},
    {"table",
     "Displacement or energy at failure, with the damage variable or the mode-mix ratio as the "
     "choices need; then temperature and field-variable columns"},
};
constexpr int kKmaCodesDamageEvolution[] = {0, 38, 23};
constexpr cls_MemberDescription kKmaDescDamageInitiation[] = {
    {"definition",
     "Form of the forming-limit data: MSFLD or FLD (limit major strain against minor strain)"},
    {"omega",
     "Weight of the current increment when the strain ratio of a forming-limit criterion is "
     "filtered (1: no filtering)"},
    {"tolerance", "Tolerance of the M-K groove analysis"},
    {"numberImperfections", "Number of groove orientations the M-K analysis examines"},
    {"ks", "Weight of the pressure in the shear stress ratio of the shear criterion"},
    {"alpha", "Weight of the shear stress in the Hashin fibre tension criterion"},
    {"direction",
     "Direction of the crack normal relative to the local material orientation: NMORI (normal to "
     "it) or TMORI (tangent to it)"},
    {"position", "Where in an element the criterion is evaluated"},
    {"feq",
     "M-K critical ratio of the equivalent plastic strain increment inside the groove to that "
     "outside"},
    {"fnn", "M-K critical ratio of the strain increment normal to the groove, inside to outside"},
    {"fnt", "M-K critical ratio of the shear strain increment along the groove, inside to outside"},
    {"frequency", "Increments between evaluations of the M-K analysis"},
    {"DamageEvolutionList",
     "The damage evolutions after the onset, one per failure mode of the criterion (no "
     "failureIndex twice)"},
};
constexpr int kKmaCodesDamageInitiation[] = {0, 23, 11, 74};
constexpr cls_MemberDescription kKmaDescDamping[] = {
    {"alpha", "Mass-proportional Rayleigh damping factor"},
    {"beta", "Stiffness-proportional Rayleigh damping factor (at least 0)"},
    {"composite", "Fraction of critical damping for composite modal damping"},
    {"structural", "Structural damping factor (damping force proportional to the elastic force)"},
};
constexpr int kKmaCodesDamping[] = {41};
constexpr int kKmaCodesCycledPlastic[] = {23};
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
     kKmaDescCastIronPlasticity, nullptr, kKmaCodesCastIronPlasticity},
    {"kmaC_ClayPlasticity",
     "Critical state clay plasticity: exponential or tabular hardening.",
     kKmaDescClayPlasticity, nullptr, kKmaCodesClayPlasticity},
    {"kmaC_Concrete",
     "Smeared crack concrete: compressive yield stress against plastic strain.",
     kKmaDescConcrete, nullptr, kKmaCodesConcrete},
    {"kmaC_ConcreteDamagedPlasticity",
     "Concrete damaged plasticity: dilation angle, eccentricity, fb0/fc0, K and viscosity per row.",
     kKmaDescConcreteDamagedPlasticity, nullptr, kKmaCodesConcreteDamagedPlasticity},
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
     {}, nullptr, kKmaCodesCycledPlastic},
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
