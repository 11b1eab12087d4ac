#pragma once
// The material's 84 option slots, one row each in the material's declaration order: the stem of
// the slot's typed accessors, the slot (its member and scripting name) and the option class it
// holds. kmaC_Material declares its typed accessors from this list, so every slot has them and
// none is written by hand. For the row X(Density, density, kmaC_Density) the material has
//   bool HasDensity() const;                 true when the slot holds an option
//   const kmaC_Density& GetDensity() const;  the option; "The material has no density option"
//                                            (nex_CmdException) when the slot is empty
//   kmaC_Density& ModifyDensity();           the same, separated from copies first
//   void SetDensity(const kmaC_Density& v);  holds a copy of v
//   void ClearDensity();                     empties the slot
// The sixteen damage initiation slots share one option class.
#define KMAC_MATERIAL_SLOTS(X) \
  X(AcousticMedium, acousticMedium, kmaC_AcousticMedium)                                   \
  X(BrittleCracking, brittleCracking, kmaC_BrittleCracking)                                \
  X(CapPlasticity, capPlasticity, kmaC_CapPlasticity)                                      \
  X(CastIronPlasticity, castIronPlasticity, kmaC_CastIronPlasticity)                       \
  X(ClayPlasticity, clayPlasticity, kmaC_ClayPlasticity)                                   \
  X(Concrete, concrete, kmaC_Concrete)                                                     \
  X(ConcreteDamagedPlasticity, concreteDamagedPlasticity, kmaC_ConcreteDamagedPlasticity)  \
  X(Conductivity, conductivity, kmaC_Conductivity)                                         \
  X(Creep, creep, kmaC_Creep)                                                              \
  X(Foam, foam, kmaC_Foam)                                                                 \
  X(DuctileDamageInitiation, ductileDamageInitiation, kmaC_DamageInitiation)               \
  X(FldDamageInitiation, fldDamageInitiation, kmaC_DamageInitiation)                       \
  X(FlsdDamageInitiation, flsdDamageInitiation, kmaC_DamageInitiation)                     \
  X(JohnsonCookDamageInitiation, johnsonCookDamageInitiation, kmaC_DamageInitiation)       \
  X(MaxeDamageInitiation, maxeDamageInitiation, kmaC_DamageInitiation)                     \
  X(MaxsDamageInitiation, maxsDamageInitiation, kmaC_DamageInitiation)                     \
  X(MaxpeDamageInitiation, maxpeDamageInitiation, kmaC_DamageInitiation)                   \
  X(MaxpsDamageInitiation, maxpsDamageInitiation, kmaC_DamageInitiation)                   \
  X(MkDamageInitiation, mkDamageInitiation, kmaC_DamageInitiation)                         \
  X(MsfldDamageInitiation, msfldDamageInitiation, kmaC_DamageInitiation)                   \
  X(QuadeDamageInitiation, quadeDamageInitiation, kmaC_DamageInitiation)                   \
  X(QuadsDamageInitiation, quadsDamageInitiation, kmaC_DamageInitiation)                   \
  X(ShearDamageInitiation, shearDamageInitiation, kmaC_DamageInitiation)                   \
  X(HashinDamageInitiation, hashinDamageInitiation, kmaC_DamageInitiation)                 \
  X(Damping, damping, kmaC_Damping)                                                        \
  X(DeformationPlasticity, deformationPlasticity, kmaC_DeformationPlasticity)              \
  X(Density, density, kmaC_Density)                                                        \
  X(Depvar, depvar, kmaC_Depvar)                                                           \
  X(Dielectric, dielectric, kmaC_Dielectric)                                               \
  X(Diffusivity, diffusivity, kmaC_Diffusivity)                                            \
  X(DruckerPrager, druckerPrager, kmaC_DruckerPrager)                                      \
  X(Elastic, elastic, kmaC_Elastic)                                                        \
  X(ElectricalConductivity, electricalConductivity, kmaC_ElectricalConductivity)           \
  X(Eos, eos, kmaC_Eos)                                                                    \
  X(Expansion, expansion, kmaC_Expansion)                                                  \
  X(FluidLeakoff, fluidLeakoff, kmaC_FluidLeakoff)                                         \
  X(GapFlow, gapFlow, kmaC_GapFlow)                                                        \
  X(ThicknessBehavior, thicknessBehavior, kmaC_ThicknessBehavior)                          \
  X(TransShearElastic, transShearElastic, kmaC_TransShearElastic)                          \
  X(MembraneElastic, membraneElastic, kmaC_MembraneElastic)                                \
  X(Gel, gel, kmaC_Gel)                                                                    \
  X(HeatGeneration, heatGeneration, kmaC_HeatGeneration)                                   \
  X(Hyperelastic, hyperelastic, kmaC_Hyperelastic)                                         \
  X(Hyperfoam, hyperfoam, kmaC_Hyperfoam)                                                  \
  X(Hypoelastic, hypoelastic, kmaC_Hypoelastic)                                            \
  X(InelasticHeatFraction, inelasticHeatFraction, kmaC_InelasticHeatFraction)              \
  X(JouleHeatFraction, jouleHeatFraction, kmaC_JouleHeatFraction)                          \
  X(LatentHeat, latentHeat, kmaC_LatentHeat)                                               \
  X(LowDensityFoam, lowDensityFoam, kmaC_LowDensityFoam)                                   \
  X(MagneticPermeability, magneticPermeability, kmaC_MagneticPermeability)                 \
  X(MohrCoulomb, mohrCoulomb, kmaC_MohrCoulomb)                                            \
  X(MoistureSwelling, moistureSwelling, kmaC_MoistureSwelling)                             \
  X(MullinsEffect, mullinsEffect, kmaC_MullinsEffect)                                      \
  X(Permeability, permeability, kmaC_Permeability)                                         \
  X(Piezoelectric, piezoelectric, kmaC_Piezoelectric)                                      \
  X(Plastic, plastic, kmaC_Plastic)                                                        \
  X(PoreFluidExpansion, poreFluidExpansion, kmaC_PoreFluidExpansion)                       \
  X(PorousBulkModuli, porousBulkModuli, kmaC_PorousBulkModuli)                             \
  X(PorousElastic, porousElastic, kmaC_PorousElastic)                                      \
  X(PorousMetalPlasticity, porousMetalPlasticity, kmaC_PorousMetalPlasticity)              \
  X(Regularization, regularization, kmaC_Regularization)                                   \
  X(Shear, shear, kmaC_Shear)                                                              \
  X(Solubility, solubility, kmaC_Solubility)                                               \
  X(Sorption, sorption, kmaC_Sorption)                                                     \
  X(SpecificHeat, specificHeat, kmaC_SpecificHeat)                                         \
  X(Swelling, swelling, kmaC_Swelling)                                                     \
  X(UserDefinedField, userDefinedField, kmaC_UserDefinedField)                             \
  X(UserMaterial, userMaterial, kmaC_UserMaterial)                                         \
  X(UserOutputVariables, userOutputVariables, kmaC_UserOutputVariables)                    \
  X(Viscoelastic, viscoelastic, kmaC_Viscoelastic)                                         \
  X(Viscosity, viscosity, kmaC_Viscosity)                                                  \
  X(Viscous, viscous, kmaC_Viscous)                                                        \
  X(SoftRockPlasticity, softRockPlasticity, kmaC_SoftRockPlasticity)                       \
  X(SuperElasticity, superElasticity, kmaC_SuperElasticity)                                \
  X(MeanFieldHomogenization, meanFieldHomogenization, kmaC_MeanFieldHomogenization)        \
  X(GapConductance, gapConductance, kmaC_GapConductance)                                   \
  X(GapConvection, gapConvection, kmaC_GapConvection)                                      \
  X(GapRadiation, gapRadiation, kmaC_GapRadiation)                                         \
  X(CrushStress, crushStress, kmaC_CrushStress)                                            \
  X(PlasticityCorrection, plasticityCorrection, kmaC_PlasticityCorrection)                 \
  X(LaRC05DamageInitiation, laRC05DamageInitiation, kmaC_DamageInitiation)                 \
  X(HosfordCoulombDamageInitiation, hosfordCoulombDamageInitiation, kmaC_DamageInitiation) \
  X(Electrolyte, electrolyte, kmaC_Electrolyte)                                            \
  X(Electrode, electrode, kmaC_Electrode)

// Forward declarations of the slot classes (a class repeated in the list is declared again, which
// is harmless).
#define KMAC_FORWARD_SLOT_CLASS(Stem, member, Class) class Class;

// The typed accessors of one slot, declared in the material's class body.
#define KMAC_DECLARE_SLOT_ACCESSORS(Stem, member, Class) \
  bool Has##Stem() const { return !member.IsNull(); }   \
  const Class& Get##Stem() const;                       \
  Class& Modify##Stem();                                \
  void Set##Stem(const Class& v);                       \
  void Clear##Stem() { member.Clear(); }
