#include "kma/QMXOdbKmaC.h"

#include <iterator>
#include "kma/kmaC_Advice.h"

#include "kma/kmaC_Descriptions.h"
#include "kma/kmaC_RateDependent.h"
#include "kma/kmaC_Potential.h"
#include "kma/kmaC_CyclicHardening.h"
#include "kma/kmaC_Ornl.h"
#include "kma/kmaC_CycledPlastic.h"
#include "kma/kmaC_AnnealTemperature.h"
#include "kma/kmaC_TensileFailure.h"
#include "kma/kmaC_AnnealTemperature_Versions.h"
#include "kma/kmaC_Density.h"
#include "kma/kmaC_Density_Versions.h"
#include "kma/kmaC_Expansion.h"
#include "kma/kmaC_Expansion_Versions.h"
#include "kma/kmaC_Conductivity.h"
#include "kma/kmaC_SpecificHeat.h"
#include "kma/kmaC_SpecificHeat_Versions.h"
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_Hyperelastic_Versions.h"
#include "kma/kmaC_Creep.h"
#include "kma/kmaC_Creep_Versions.h"
#include "kma/kmaC_Viscoelastic.h"
#include "kma/kmaC_Viscoelastic_Versions.h"
#include "kma/kmaC_ConcreteDamagedPlasticity.h"
#include "kma/kmaC_Foam.h"
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_Eos_Versions.h"
#include "kma/kmaC_Damping.h"
#include "kma/kmaC_Damping_Versions.h"
#include "kma/kmaC_Depvar.h"
#include "kma/kmaC_InelasticHeatFraction.h"
#include "kma/kmaC_JouleHeatFraction.h"
#include "kma/kmaC_LatentHeat.h"
#include "kma/kmaC_UserMaterial.h"
#include "kma/kmaC_UserMaterial_Versions.h"
#include "kma/kmaC_UserOutputVariables.h"
#include "kma/kmaC_HeatGeneration.h"
#include "kma/kmaC_Gel.h"
#include "kma/kmaC_Dielectric.h"
#include "kma/kmaC_Dielectric_Versions.h"
#include "kma/kmaC_ElectricalConductivity.h"
#include "kma/kmaC_ElectricalConductivity_Versions.h"
#include "kma/kmaC_Piezoelectric.h"
#include "kma/kmaC_Piezoelectric_Versions.h"
#include "kma/kmaC_Diffusivity.h"
#include "kma/kmaC_Solubility.h"
#include "kma/kmaC_Regularization.h"
#include "kma/kmaC_Regularization_Versions.h"
#include "kma/kmaC_Viscosity.h"
#include "kma/kmaC_Viscosity_Versions.h"
#include "kma/kmaC_Hypoelastic.h"
#include "kma/kmaC_Shear.h"
#include "kma/kmaC_PorousBulkModuli.h"
#include "kma/kmaC_MembraneElastic.h"
#include "kma/kmaC_TransShearElastic.h"
#include "kma/kmaC_TransShearElastic_Versions.h"
#include "kma/kmaC_AcousticMedium.h"
#include "kma/kmaC_BrittleCracking.h"
#include "kma/kmaC_BrittleCracking_Versions.h"
#include "kma/kmaC_CapPlasticity.h"
#include "kma/kmaC_CapPlasticity_Versions.h"
#include "kma/kmaC_CastIronPlasticity.h"
#include "kma/kmaC_ClayPlasticity.h"
#include "kma/kmaC_ClayPlasticity_Versions.h"
#include "kma/kmaC_Concrete.h"
#include "kma/kmaC_DeformationPlasticity.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_FluidLeakoff.h"
#include "kma/kmaC_GapFlow.h"
#include "kma/kmaC_GapConductance.h"
#include "kma/kmaC_GapConvection.h"
#include "kma/kmaC_GapRadiation.h"
#include "kma/kmaC_Hyperfoam.h"
#include "kma/kmaC_Hyperfoam_Versions.h"
#include "kma/kmaC_LowDensityFoam.h"
#include "kma/kmaC_MagneticPermeability.h"
#include "kma/kmaC_MagneticPermeability_Versions.h"
#include "kma/kmaC_MohrCoulomb.h"
#include "kma/kmaC_MohrCoulomb_Versions.h"
#include "kma/kmaC_MoistureSwelling.h"
#include "kma/kmaC_Permeability.h"
#include "kma/kmaC_Permeability_Versions.h"
#include "kma/kmaC_PoreFluidExpansion.h"
#include "kma/kmaC_PorousElastic.h"
#include "kma/kmaC_PorousElastic_Versions.h"
#include "kma/kmaC_PorousMetalPlasticity.h"
#include "kma/kmaC_Sorption.h"
#include "kma/kmaC_Swelling.h"
#include "kma/kmaC_UserDefinedField.h"
#include "kma/kmaC_SoftRockPlasticity.h"
#include "kma/kmaC_SuperElasticity.h"
#include "kma/kmaC_SuperElasticity_Versions.h"
#include "kma/kmaC_PlasticityCorrection.h"
#include "kma/kmaC_ThicknessBehavior.h"
#include "kma/kmaC_ThicknessBehavior_Versions.h"
#include "kma/kmaC_Viscous.h"
#include "kma/kmaC_Viscous_Versions.h"
#include "kma/kmaC_Electrolyte.h"
#include "kma/kmaC_CapCreep.h"
#include "kma/kmaC_CapCreep_Versions.h"
#include "kma/kmaC_CapCreepCohesion.h"
#include "kma/kmaC_CapCreepCohesion_Versions.h"
#include "kma/kmaC_CapCreepConsolidation.h"
#include "kma/kmaC_CapCreepConsolidation_Versions.h"
#include "kma/kmaC_DruckerPragerCreep.h"
#include "kma/kmaC_DruckerPragerCreep_Versions.h"
#include "kma/kmaC_EosShear.h"
#include "kma/kmaC_EosShear_Versions.h"
#include "kma/kmaC_ShearRetention.h"
#include "kma/kmaC_ShearRetention_Versions.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_DamageInitiation_Versions.h"
#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_DamageEvolution_Versions.h"
#include "kma/kmaC_UniaxialTestData.h"
#include "kma/kmaC_BiaxialTestData.h"
#include "kma/kmaC_PlanarTestData.h"
#include "kma/kmaC_VolumetricTestData.h"
#include "kma/kmaC_TestData_Versions.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_MullinsEffect_Versions.h"
#include "kma/kmaC_CrushStressVelocityFactor.h"
#include "kma/kmaC_CrushStress.h"
#include "kma/kmaC_CrushStress_Versions.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_FailStrain.h"
#include "kma/kmaC_FailStress.h"
#include "kma/kmaC_MCWrapper.h"
#include "kma/kmaC_FCWrapper.h"
#include "kma/kmaC_FieldConstituent.h"
#include "kma/kmaC_FieldConstituentContainer.h"
#include "kma/kmaC_MeanFieldHomogenization.h"
#include "kma/kmaC_Electrode.h"
#include "kma/kmaC_Material.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_Material_Versions.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_Plastic_Versions.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;

template <class Step>
void RegisterOld(dbc_OldClassRegistrar& old) {
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new Step), 5);
}
}  // namespace

void kmaC_formalize() {}

int QMXOdbKmaC_count() { return count; }

void QMXOdbKmaC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kmaC_RegisterDescriptions();
  kmaC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKmaC");
  typ_ArchCompTable::InsertEntry(kmaC_kArchKey, kmaC_ArchEntry());
  {
    kmaC_MaterialContainer materials;
    kmaC_MCWrapper prototype(materials);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kmaC_MCWrapper");
  }
  {
    kmaC_FieldConstituentContainer constituents;
    kmaC_FCWrapper prototype(constituents);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kmaC_FCWrapper");
  }
  // Every class of this module, the container and its wrapper included, goes with group 7.
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kmaC_MaterialOption::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MaterialTable::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_FailStrain::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_FailStress::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Elastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_RateDependent::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Potential::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CyclicHardening::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Ornl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CycledPlastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_AnnealTemperature::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_TensileFailure::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Plastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Density::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Expansion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Conductivity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_SpecificHeat::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Hyperelastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Creep::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Viscoelastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ConcreteDamagedPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Foam::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Eos::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Damping::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Depvar::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_InelasticHeatFraction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_JouleHeatFraction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_LatentHeat::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_UserMaterial::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_UserOutputVariables::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_HeatGeneration::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Gel::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Dielectric::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ElectricalConductivity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Piezoelectric::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Diffusivity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Solubility::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Regularization::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Viscosity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Hypoelastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Shear::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_PorousBulkModuli::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MembraneElastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_TransShearElastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_AcousticMedium::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_BrittleCracking::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CapCreep::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CapCreepCohesion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CapCreepConsolidation::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_DruckerPragerCreep::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_EosShear::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ShearRetention::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CapPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CastIronPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ClayPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Concrete::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_DeformationPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_DruckerPrager::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_FluidLeakoff::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_GapFlow::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_GapConductance::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_GapConvection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_GapRadiation::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Hyperfoam::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_LowDensityFoam::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MagneticPermeability::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MohrCoulomb::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MoistureSwelling::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Permeability::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_PoreFluidExpansion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_PorousElastic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_PorousMetalPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Sorption::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Swelling::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_UserDefinedField::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_SoftRockPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_SuperElasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_PlasticityCorrection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ThicknessBehavior::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Viscous::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Electrolyte::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_DamageEvolution::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_DamageInitiation::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_UniaxialTestData::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_BiaxialTestData::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_PlanarTestData::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_VolumetricTestData::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MullinsEffect::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CrushStressVelocityFactor::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_CrushStress::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Material::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MaterialContainer::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MCWrapper::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_MeanFieldHomogenization::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ElectrodeParticle::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_ElectrodeParticleLayer::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_Electrode::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_FieldConstituent::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_FieldConstituentContainer::InitializeMetadata, 7);
  metadata.initClassMetadata(&kmaC_FCWrapper::InitializeMetadata, 7);

  auto& old = omi_Singleton<dbc_OldClassRegistrar>::Instance();
  RegisterOld<kmaC_Material_203>(old);
  RegisterOld<kmaC_Material_212>(old);
  RegisterOld<kmaC_Material_301>(old);
  RegisterOld<kmaC_Material_849>(old);
  RegisterOld<kmaC_Material_850>(old);
  RegisterOld<kmaC_Material_869>(old);
  RegisterOld<kmaC_Material_1053>(old);
  RegisterOld<kmaC_Material_1106>(old);
  RegisterOld<kmaC_Material_1352>(old);
  RegisterOld<kmaC_Material_1400>(old);
  RegisterOld<kmaC_Material_1411>(old);
  RegisterOld<kmaC_Material_1436>(old);
  RegisterOld<kmaC_Material_1449>(old);
  RegisterOld<kmaC_Material_1628>(old);
  RegisterOld<kmaC_Material_1853>(old);
  RegisterOld<kmaC_Material_1857>(old);
  RegisterOld<kmaC_Material_1901>(old);
  RegisterOld<kmaC_Material_2102>(old);
  RegisterOld<kmaC_Material_2210>(old);
  RegisterOld<kmaC_Material_2218>(old);
  RegisterOld<kmaC_Material_2300>(old);
  RegisterOld<kmaC_Material_2305>(old);
  RegisterOld<kmaC_Plastic_203>(old);
  RegisterOld<kmaC_Plastic_419>(old);
  RegisterOld<kmaC_Plastic_1107>(old);
  RegisterOld<kmaC_Plastic_2002>(old);
  RegisterOld<kmaC_Plastic_2008>(old);
  RegisterOld<kmaC_AnnealTemperature_203>(old);
  RegisterOld<kmaC_AnnealTemperature_307>(old);
  RegisterOld<kmaC_AnnealTemperature_452>(old);
  RegisterOld<kmaC_Density_203>(old);
  RegisterOld<kmaC_Expansion_203>(old);
  RegisterOld<kmaC_Expansion_419>(old);
  RegisterOld<kmaC_SpecificHeat_203>(old);
  RegisterOld<kmaC_Hyperelastic_203>(old);
  RegisterOld<kmaC_Hyperelastic_324>(old);
  RegisterOld<kmaC_Hyperelastic_328>(old);
  RegisterOld<kmaC_Hyperelastic_850>(old);
  RegisterOld<kmaC_Hyperelastic_864>(old);
  RegisterOld<kmaC_Creep_203>(old);
  RegisterOld<kmaC_Viscoelastic_203>(old);
  RegisterOld<kmaC_Viscoelastic_855>(old);
  RegisterOld<kmaC_Eos_203>(old);
  RegisterOld<kmaC_Eos_850>(old);
  RegisterOld<kmaC_Eos_1394>(old);
  RegisterOld<kmaC_Eos_1447>(old);
  RegisterOld<kmaC_Eos_1449>(old);
  RegisterOld<kmaC_Damping_203>(old);
  RegisterOld<kmaC_UserMaterial_203>(old);
  RegisterOld<kmaC_UserMaterial_419>(old);
  RegisterOld<kmaC_UserMaterial_451>(old);
  RegisterOld<kmaC_Dielectric_203>(old);
  RegisterOld<kmaC_ElectricalConductivity_203>(old);
  RegisterOld<kmaC_Piezoelectric_203>(old);
  RegisterOld<kmaC_Regularization_203>(old);
  RegisterOld<kmaC_Viscosity_1411>(old);
  RegisterOld<kmaC_TransShearElastic_203>(old);
  RegisterOld<kmaC_BrittleCracking_203>(old);
  RegisterOld<kmaC_CapPlasticity_203>(old);
  RegisterOld<kmaC_CapPlasticity_452>(old);
  RegisterOld<kmaC_ClayPlasticity_203>(old);
  RegisterOld<kmaC_Hyperfoam_203>(old);
  RegisterOld<kmaC_Hyperfoam_850>(old);
  RegisterOld<kmaC_MagneticPermeability_1628>(old);
  RegisterOld<kmaC_MohrCoulomb_205>(old);
  RegisterOld<kmaC_MohrCoulomb_404>(old);
  RegisterOld<kmaC_MohrCoulomb_1422>(old);
  RegisterOld<kmaC_Permeability_203>(old);
  RegisterOld<kmaC_Permeability_404>(old);
  RegisterOld<kmaC_Permeability_1502>(old);
  RegisterOld<kmaC_PorousElastic_203>(old);
  RegisterOld<kmaC_SuperElasticity_1857>(old);
  RegisterOld<kmaC_ThicknessBehavior_203>(old);
  RegisterOld<kmaC_Viscous_203>(old);
  RegisterOld<kmaC_Viscous_438>(old);
  RegisterOld<kmaC_CapCreep_203>(old);
  RegisterOld<kmaC_CapCreepCohesion_452>(old);
  RegisterOld<kmaC_CapCreepConsolidation_452>(old);
  RegisterOld<kmaC_DruckerPragerCreep_203>(old);
  RegisterOld<kmaC_EosShear_203>(old);
  RegisterOld<kmaC_EosShear_1338>(old);
  RegisterOld<kmaC_ShearRetention_203>(old);
  RegisterOld<kmaC_DamageInitiation_869>(old);
  RegisterOld<kmaC_DamageInitiation_883>(old);
  RegisterOld<kmaC_DamageInitiation_1352>(old);
  RegisterOld<kmaC_DamageInitiation_1390>(old);
  RegisterOld<kmaC_DamageInitiation_1432>(old);
  RegisterOld<kmaC_DamageInitiation_1801>(old);
  RegisterOld<kmaC_DamageEvolution_869>(old);
  RegisterOld<kmaC_DamageEvolution_883>(old);
  RegisterOld<kmaC_UniaxialTestData_203>(old);
  RegisterOld<kmaC_BiaxialTestData_203>(old);
  RegisterOld<kmaC_PlanarTestData_203>(old);
  RegisterOld<kmaC_VolumetricTestData_203>(old);
  RegisterOld<kmaC_VolumetricTestData_324>(old);
  RegisterOld<kmaC_MullinsEffect_850>(old);
  RegisterOld<kmaC_CrushStress_2210>(old);
}

void QMXOdbKmaC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kmaC_UnregisterDescriptions();
  kmaC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKmaC");
  ddr_Model::UnRegisterExtension(kmaC_FieldConstituentContainer::Names::kRepositoryName);
  ddr_Model::UnRegisterExtension(kmaC_MaterialContainer::Names::kRepositoryName);
}
