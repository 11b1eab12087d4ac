#pragma once
// The option classes of the material module by their rows in the module's architecture table:
// each value is the row, so the class's type id is (568 << 16) | value. The table fixes the type
// id of every option class, including those whose class this library does not offer yet, so that
// a slot knows what it may hold before its class exists.
#include "framework/fw_Field.h"

inline constexpr unsigned kmaC_kArchKey = 568;

enum class kmaC_OptionClass : unsigned {
  AcousticMedium = 3,
  AnnealTemperature = 4,
  BiaxialTestData = 5,
  BrittleCracking = 6,
  CapCreep = 7,
  CapCreepCohesion = 8,
  CapCreepConsolidation = 9,
  CapPlasticity = 10,
  CastIronPlasticity = 11,
  ClayPlasticity = 12,
  Concrete = 13,
  ConcreteDamagedPlasticity = 14,
  Conductivity = 15,
  Creep = 16,
  CrushStress = 17,
  CycledPlastic = 18,
  CyclicHardening = 19,
  DamageEvolution = 20,
  DamageInitiation = 21,
  Damping = 22,
  DeformationPlasticity = 23,
  Density = 24,
  Depvar = 25,
  Dielectric = 26,
  Diffusivity = 27,
  DruckerPrager = 28,
  DruckerPragerCreep = 29,
  Elastic = 30,
  ElectricalConductivity = 31,
  Electrode = 32,
  Electrolyte = 33,
  FailStrain = 34,
  FailStress = 35,
  Eos = 36,
  EosShear = 37,
  Expansion = 38,
  FluidLeakoff = 39,
  Foam = 40,
  GapConductance = 41,
  GapConvection = 42,
  GapFlow = 43,
  GapRadiation = 44,
  Gel = 45,
  HeatGeneration = 46,
  Hyperelastic = 47,
  Hyperfoam = 48,
  Hypoelastic = 49,
  InelasticHeatFraction = 50,
  JouleHeatFraction = 51,
  LatentHeat = 52,
  LowDensityFoam = 53,
  MagneticPermeability = 54,
  MeanFieldHomogenization = 55,
  MembraneElastic = 56,
  MohrCoulomb = 57,
  MoistureSwelling = 58,
  MullinsEffect = 59,
  Plastic = 60,
  Ornl = 62,
  Permeability = 63,
  Piezoelectric = 64,
  PlanarTestData = 65,
  PlasticityCorrection = 66,
  PoreFluidExpansion = 67,
  PorousBulkModuli = 68,
  PorousElastic = 69,
  PorousMetalPlasticity = 70,
  Potential = 71,
  RateDependent = 72,
  Regularization = 73,
  Shear = 74,
  ShearRetention = 75,
  SoftRockPlasticity = 76,
  Solubility = 77,
  Sorption = 78,
  SpecificHeat = 79,
  SuperElasticity = 80,
  Swelling = 81,
  TensileFailure = 82,
  ThicknessBehavior = 83,
  TransShearElastic = 84,
  UniaxialTestData = 85,
  UserDefinedField = 86,
  UserMaterial = 87,
  UserOutputVariables = 88,
  Viscoelastic = 89,
  Viscosity = 90,
  Viscous = 91,
  VolumetricTestData = 92,
  // Sub-option classes added after the material container's rows take rows from 114 on.
  CrushStressVelocityFactor = 114,
  // The electrode's list elements, which joined after the constituents' rows were given out.
  ElectrodeParticle = 149,
  ElectrodeParticleLayer = 150,
};

// The registered class name of an option class ("kmaC_Elastic").
constexpr const char* kmaC_OptionClassName(kmaC_OptionClass c) {
  switch (c) {
    case kmaC_OptionClass::AcousticMedium: return "kmaC_AcousticMedium";
    case kmaC_OptionClass::AnnealTemperature: return "kmaC_AnnealTemperature";
    case kmaC_OptionClass::BiaxialTestData: return "kmaC_BiaxialTestData";
    case kmaC_OptionClass::BrittleCracking: return "kmaC_BrittleCracking";
    case kmaC_OptionClass::CapCreep: return "kmaC_CapCreep";
    case kmaC_OptionClass::CapCreepCohesion: return "kmaC_CapCreepCohesion";
    case kmaC_OptionClass::CapCreepConsolidation: return "kmaC_CapCreepConsolidation";
    case kmaC_OptionClass::CapPlasticity: return "kmaC_CapPlasticity";
    case kmaC_OptionClass::CastIronPlasticity: return "kmaC_CastIronPlasticity";
    case kmaC_OptionClass::ClayPlasticity: return "kmaC_ClayPlasticity";
    case kmaC_OptionClass::Concrete: return "kmaC_Concrete";
    case kmaC_OptionClass::ConcreteDamagedPlasticity: return "kmaC_ConcreteDamagedPlasticity";
    case kmaC_OptionClass::Conductivity: return "kmaC_Conductivity";
    case kmaC_OptionClass::Creep: return "kmaC_Creep";
    case kmaC_OptionClass::CrushStress: return "kmaC_CrushStress";
    case kmaC_OptionClass::CycledPlastic: return "kmaC_CycledPlastic";
    case kmaC_OptionClass::CyclicHardening: return "kmaC_CyclicHardening";
    case kmaC_OptionClass::DamageEvolution: return "kmaC_DamageEvolution";
    case kmaC_OptionClass::DamageInitiation: return "kmaC_DamageInitiation";
    case kmaC_OptionClass::Damping: return "kmaC_Damping";
    case kmaC_OptionClass::DeformationPlasticity: return "kmaC_DeformationPlasticity";
    case kmaC_OptionClass::Density: return "kmaC_Density";
    case kmaC_OptionClass::Depvar: return "kmaC_Depvar";
    case kmaC_OptionClass::Dielectric: return "kmaC_Dielectric";
    case kmaC_OptionClass::Diffusivity: return "kmaC_Diffusivity";
    case kmaC_OptionClass::DruckerPrager: return "kmaC_DruckerPrager";
    case kmaC_OptionClass::DruckerPragerCreep: return "kmaC_DruckerPragerCreep";
    case kmaC_OptionClass::Elastic: return "kmaC_Elastic";
    case kmaC_OptionClass::ElectricalConductivity: return "kmaC_ElectricalConductivity";
    case kmaC_OptionClass::Electrode: return "kmaC_Electrode";
    case kmaC_OptionClass::Electrolyte: return "kmaC_Electrolyte";
    case kmaC_OptionClass::FailStrain: return "kmaC_FailStrain";
    case kmaC_OptionClass::FailStress: return "kmaC_FailStress";
    case kmaC_OptionClass::Eos: return "kmaC_Eos";
    case kmaC_OptionClass::EosShear: return "kmaC_EosShear";
    case kmaC_OptionClass::Expansion: return "kmaC_Expansion";
    case kmaC_OptionClass::FluidLeakoff: return "kmaC_FluidLeakoff";
    case kmaC_OptionClass::Foam: return "kmaC_Foam";
    case kmaC_OptionClass::GapConductance: return "kmaC_GapConductance";
    case kmaC_OptionClass::GapConvection: return "kmaC_GapConvection";
    case kmaC_OptionClass::GapFlow: return "kmaC_GapFlow";
    case kmaC_OptionClass::GapRadiation: return "kmaC_GapRadiation";
    case kmaC_OptionClass::Gel: return "kmaC_Gel";
    case kmaC_OptionClass::HeatGeneration: return "kmaC_HeatGeneration";
    case kmaC_OptionClass::Hyperelastic: return "kmaC_Hyperelastic";
    case kmaC_OptionClass::Hyperfoam: return "kmaC_Hyperfoam";
    case kmaC_OptionClass::Hypoelastic: return "kmaC_Hypoelastic";
    case kmaC_OptionClass::InelasticHeatFraction: return "kmaC_InelasticHeatFraction";
    case kmaC_OptionClass::JouleHeatFraction: return "kmaC_JouleHeatFraction";
    case kmaC_OptionClass::LatentHeat: return "kmaC_LatentHeat";
    case kmaC_OptionClass::LowDensityFoam: return "kmaC_LowDensityFoam";
    case kmaC_OptionClass::MagneticPermeability: return "kmaC_MagneticPermeability";
    case kmaC_OptionClass::MeanFieldHomogenization: return "kmaC_MeanFieldHomogenization";
    case kmaC_OptionClass::MembraneElastic: return "kmaC_MembraneElastic";
    case kmaC_OptionClass::MohrCoulomb: return "kmaC_MohrCoulomb";
    case kmaC_OptionClass::MoistureSwelling: return "kmaC_MoistureSwelling";
    case kmaC_OptionClass::MullinsEffect: return "kmaC_MullinsEffect";
    case kmaC_OptionClass::Plastic: return "kmaC_Plastic";
    case kmaC_OptionClass::Ornl: return "kmaC_Ornl";
    case kmaC_OptionClass::Permeability: return "kmaC_Permeability";
    case kmaC_OptionClass::Piezoelectric: return "kmaC_Piezoelectric";
    case kmaC_OptionClass::PlanarTestData: return "kmaC_PlanarTestData";
    case kmaC_OptionClass::PlasticityCorrection: return "kmaC_PlasticityCorrection";
    case kmaC_OptionClass::PoreFluidExpansion: return "kmaC_PoreFluidExpansion";
    case kmaC_OptionClass::PorousBulkModuli: return "kmaC_PorousBulkModuli";
    case kmaC_OptionClass::PorousElastic: return "kmaC_PorousElastic";
    case kmaC_OptionClass::PorousMetalPlasticity: return "kmaC_PorousMetalPlasticity";
    case kmaC_OptionClass::Potential: return "kmaC_Potential";
    case kmaC_OptionClass::RateDependent: return "kmaC_RateDependent";
    case kmaC_OptionClass::Regularization: return "kmaC_Regularization";
    case kmaC_OptionClass::Shear: return "kmaC_Shear";
    case kmaC_OptionClass::ShearRetention: return "kmaC_ShearRetention";
    case kmaC_OptionClass::SoftRockPlasticity: return "kmaC_SoftRockPlasticity";
    case kmaC_OptionClass::Solubility: return "kmaC_Solubility";
    case kmaC_OptionClass::Sorption: return "kmaC_Sorption";
    case kmaC_OptionClass::SpecificHeat: return "kmaC_SpecificHeat";
    case kmaC_OptionClass::SuperElasticity: return "kmaC_SuperElasticity";
    case kmaC_OptionClass::Swelling: return "kmaC_Swelling";
    case kmaC_OptionClass::TensileFailure: return "kmaC_TensileFailure";
    case kmaC_OptionClass::ThicknessBehavior: return "kmaC_ThicknessBehavior";
    case kmaC_OptionClass::TransShearElastic: return "kmaC_TransShearElastic";
    case kmaC_OptionClass::UniaxialTestData: return "kmaC_UniaxialTestData";
    case kmaC_OptionClass::UserDefinedField: return "kmaC_UserDefinedField";
    case kmaC_OptionClass::UserMaterial: return "kmaC_UserMaterial";
    case kmaC_OptionClass::UserOutputVariables: return "kmaC_UserOutputVariables";
    case kmaC_OptionClass::Viscoelastic: return "kmaC_Viscoelastic";
    case kmaC_OptionClass::Viscosity: return "kmaC_Viscosity";
    case kmaC_OptionClass::Viscous: return "kmaC_Viscous";
    case kmaC_OptionClass::VolumetricTestData: return "kmaC_VolumetricTestData";
    case kmaC_OptionClass::CrushStressVelocityFactor: return "kmaC_CrushStressVelocityFactor";
    case kmaC_OptionClass::ElectrodeParticle: return "kmaC_ElectrodeParticle";
    case kmaC_OptionClass::ElectrodeParticleLayer: return "kmaC_ElectrodeParticleLayer";
  }
  return "";
}

constexpr unsigned kmaC_OptionTypeId(kmaC_OptionClass c) { return fw_TypeId(kmaC_kArchKey, static_cast<unsigned>(c)); }
