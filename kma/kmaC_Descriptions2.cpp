#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr int kKmaCodesDeformationPlasticity[] = {0};
constexpr cls_MemberDescription kKmaDescDensity[] = {
    {"distributionType", "Distribution type"},
    {"fieldName", "Field name"},
};
constexpr int kKmaCodesDensity[] = {0};
constexpr cls_MemberDescription kKmaDescDepvar[] = {
    {"n", "N"},
    {"deleteVar", "Delete var"},
};
constexpr int kKmaCodesDepvar[] = {3, 15};
constexpr cls_MemberDescription kKmaDescDielectric[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesDielectric[] = {0};
constexpr cls_MemberDescription kKmaDescDiffusivity[] = {
    {"type", "Type"},
    {"law", "Law"},
};
constexpr int kKmaCodesDiffusivity[] = {0};
constexpr cls_MemberDescription kKmaDescDruckerPrager[] = {
    {"shearCriterion", "Shear criterion"},
    {"eccentricity", "Eccentricity"},
    {"testData", "Test data"},
    {"druckerPragerCreep", "Drucker prager creep"},
};
constexpr int kKmaCodesDruckerPrager[] = {0, 8};
constexpr cls_MemberDescription kKmaDescDruckerPragerCreep[] = {
    {"law", "Law"},
    {"time", "Time"},
};
constexpr int kKmaCodesDruckerPragerCreep[] = {0};
constexpr cls_MemberDescription kKmaDescElastic[] = {
    {"type", "Symmetry of the elastic data, selects the layout of the table's data columns"},
    {"noCompression", "The material carries no compressive stress"},
    {"noTension", "The material carries no tensile stress"},
    {"temperatureDependency", "The data depend on temperature"},
    {"dependencies", "Number of field-variable dependencies"},
    {"moduli", "Time scale of the moduli"},
    {"table", "The elastic data"},
    {"failStress", "Fail-stress limits"},
    {"failStrain", "Fail-strain limits"},
};
constexpr int kKmaCodesElastic[] = {36, 0};
constexpr cls_MemberDescription kKmaDescElectricalConductivity[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesElectricalConductivity[] = {0};
constexpr cls_MemberDescription kKmaDescElectrode[] = {
    {"type", "Type"},
    {"electricalConductivity", "Electrical conductivity"},
    {"electrodeParticleList", "Electrode particle list"},
    {"electrodeParticleLayerList", "Electrode particle layer list"},
};
constexpr int kKmaCodesElectrode[] = {0};
constexpr cls_MemberDescription kKmaDescElectrodeParticle[] = {
    {"radius", "Radius"},
    {"diffusivity", "Diffusivity"},
    {"electricalConductivity", "Electrical conductivity"},
};
constexpr int kKmaCodesElectrodeParticle[] = {0};
constexpr cls_MemberDescription kKmaDescElectrodeParticleLayer[] = {
    {"thickness", "Thickness"},
    {"numElements", "Num elements"},
};
constexpr int kKmaCodesElectrodeParticleLayer[] = {0};
constexpr int kKmaCodesElectrolyte[] = {0};
constexpr cls_MemberDescription kKmaDescEos[] = {
    {"type", "Type"},
    {"detonationEnergy", "Detonation energy"},
    {"solidTable", "Solid table"},
    {"gasTable", "Gas table"},
    {"eosShear", "Eos shear"},
};
constexpr int kKmaCodesEos[] = {0, 1};
constexpr cls_MemberDescription kKmaDescEosShear[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesEosShear[] = {0};
constexpr cls_MemberDescription kKmaDescExpansion[] = {
    {"type", "Type"},
    {"userSubroutine", "User subroutine"},
    {"zero", "Zero"},
};
constexpr int kKmaCodesExpansion[] = {0};
constexpr cls_MemberDescription kKmaDescFailStrain[] = {
    {"temperatureDependency", "The data depend on temperature"},
    {"dependencies", "Number of field-variable dependencies"},
    {"table", "The elastic data"},
};
constexpr int kKmaCodesFailStrain[] = {0};
constexpr cls_MemberDescription kKmaDescFailStress[] = {
    {"temperatureDependency", "The data depend on temperature"},
    {"dependencies", "Number of field-variable dependencies"},
    {"table", "The elastic data"},
};
constexpr int kKmaCodesFailStress[] = {0};
constexpr cls_MemberDescription kKmaDescFieldConstituent[] = {
    {"material", "Material"},
    {"type", "Type"},
    {"volumeFraction", "Volume fraction"},
    {"isotropizationCoefficient", "Isotropization coefficient"},
    {"shape", "Shape"},
    {"aspectRatio", "Aspect ratio"},
    {"orientation", "Orientation"},
};
constexpr int kKmaCodesFieldConstituent[] = {0, 63, 65, 66, 67, 68, 69, 64};
constexpr cls_MemberDescription kKmaDescFluidLeakoff[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesFluidLeakoff[] = {0};
constexpr cls_MemberDescription kKmaDescFoam[] = {
    {"hardening", "Hardening"},
};
constexpr int kKmaCodesFoam[] = {0};
constexpr cls_MemberDescription kKmaDescGapConductance[] = {
    {"pressureDependency", "Pressure dependency"},
};
constexpr int kKmaCodesGapConductance[] = {0};
constexpr cls_ClassDescription kKmaDescriptions2[] = {
    {"kmaC_DeformationPlasticity",
     "Ramberg-Osgood deformation plasticity.",
     {}, nullptr, kKmaCodesDeformationPlasticity},
    {"kmaC_Density",
     "Mass density of a material, uniform or given by a discrete field, possibly temperature and "
     "field dependent.",
     kKmaDescDensity, nullptr, kKmaCodesDensity},
    {"kmaC_Depvar",
     "Solution-dependent state variables of a user material: their number and the one that "
     "deletes an element.",
     kKmaDescDepvar, nullptr, kKmaCodesDepvar},
    {"kmaC_Dielectric",
     "Dielectric permittivity by the symmetry of the type, possibly frequency dependent.",
     kKmaDescDielectric, nullptr, kKmaCodesDielectric},
    {"kmaC_Diffusivity",
     "Mass diffusivity by the symmetry of the type and the diffusion law.",
     kKmaDescDiffusivity, nullptr, kKmaCodesDiffusivity},
    {"kmaC_DruckerPrager",
     "Extended Drucker-Prager plasticity: the shear criterion, the flow potential eccentricity "
     "and the data table.",
     kKmaDescDruckerPrager, nullptr, kKmaCodesDruckerPrager},
    {"kmaC_DruckerPragerCreep",
     "Creep of an extended Drucker-Prager material: the law, its time measure and its data; a "
     "user law reads no table.",
     kKmaDescDruckerPragerCreep, nullptr, kKmaCodesDruckerPragerCreep},
    {"kmaC_Elastic",
     "Linear elastic behavior: the symmetry of the data, the data table, its dependencies, and "
     "the optional fail-stress and fail-strain limits.",
     kKmaDescElastic, nullptr, kKmaCodesElastic},
    {"kmaC_ElectricalConductivity",
     "Electrical conductivity by the symmetry of the type, possibly frequency dependent.",
     kKmaDescElectricalConductivity, nullptr, kKmaCodesElectricalConductivity},
    {"kmaC_Electrode",
     "A porous electrode of a battery cell: its polarity, its data table, the solid-phase "
     "electrical conduction as a sub-option, and two lists: the particle kinds it is made of and "
     "its layers through the thickness.",
     kKmaDescElectrode, nullptr, kKmaCodesElectrode},
    {"kmaC_ElectrodeParticle",
     "One particle kind of a porous electrode: its radius (blank until given), its data table "
     "(the open-circuit potential over the state of charge) and the solid-phase diffusion and "
     "electrical conduction of the particle as sub-options.",
     kKmaDescElectrodeParticle, nullptr, kKmaCodesElectrodeParticle},
    {"kmaC_ElectrodeParticleLayer",
     "One layer of a porous electrode through its thickness: the layer's thickness (blank until "
     "given), the number of elements across it and its data table (the particle volume fractions "
     "of the layer).",
     kKmaDescElectrodeParticleLayer, nullptr, kKmaCodesElectrodeParticleLayer},
    {"kmaC_Electrolyte",
     "Electrolyte of a battery cell: conductivity and diffusivity data.",
     {}, nullptr, kKmaCodesElectrolyte},
    {"kmaC_Eos",
     "Equation of state: the form, its data table and the detonation energy of explosives.",
     kKmaDescEos, nullptr, kKmaCodesEos},
    {"kmaC_EosShear",
     "The deviatoric response of an equation-of-state material: viscous (a viscosity per row) or "
     "elastic (a shear modulus per row).",
     kKmaDescEosShear, nullptr, kKmaCodesEosShear},
    {"kmaC_Expansion",
     "Thermal expansion: the coefficients for the symmetry of the type, the reference temperature "
     "(zero) and whether a user routine supplies the strains.",
     kKmaDescExpansion, nullptr, kKmaCodesExpansion},
    {"kmaC_FailStrain",
     "Fail-strain limits of an elastic option: a table of limit strains, possibly temperature and "
     "field dependent.",
     kKmaDescFailStrain, nullptr, kKmaCodesFailStrain},
    {"kmaC_FailStress",
     "Fail-stress limits of an elastic option: a table of limit stresses, possibly temperature "
     "and field dependent.",
     kKmaDescFailStress, nullptr, kKmaCodesFailStress},
    {"kmaC_FieldConstituent",
     "One constituent of a mean-field homogenized composite, held by name in the model's "
     "constituent repository (\"fieldConstituents\") and named by a mean-field homogenization "
     "option: the material it is made of, whether it is the matrix or an inclusion, its volume "
     "fraction, and for an inclusion its shape, aspect ratio, isotropization coefficient and "
     "orientation.",
     kKmaDescFieldConstituent, nullptr, kKmaCodesFieldConstituent},
    {"kmaC_FluidLeakoff",
     "Fluid leakoff through the faces of a pore pressure cohesive element.",
     kKmaDescFluidLeakoff, nullptr, kKmaCodesFluidLeakoff},
    {"kmaC_Foam",
     "Crushable foam plasticity: the hardening of the yield surface and its shape data.",
     kKmaDescFoam, nullptr, kKmaCodesFoam},
    {"kmaC_GapConductance",
     "Heat conductance across a gap against clearance or pressure.",
     kKmaDescGapConductance, nullptr, kKmaCodesGapConductance},
};
}  // namespace

std::span<const cls_ClassDescription> kmaC_Descriptions2Table() { return kKmaDescriptions2; }
