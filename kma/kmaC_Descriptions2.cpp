#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr int kKmaCodesDeformationPlasticity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescDensity[] = {
    {"distributionType",
     "How the density is given: UNIFORM (the table) or by the analytical or discrete field named "
     "in fieldName"},
    {"fieldName", "Name of the field that distributes the density (empty for UNIFORM)"},
};
constexpr int kKmaCodesDensity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescDepvar[] = {
    {"n", "Number of solution-dependent state variables"},
    {"deleteVar", "State variable whose value deletes an element (0: none; at most n)"},
};
constexpr int kKmaCodesDepvar[] = {3, 15};
constexpr cls_MemberDescription kKmaDescDielectric[] = {
    {"type",
     "Symmetry of the data: 1 (ISOTROPIC), 3 (ORTHOTROPIC) or 6 (ANISOTROPIC) values per row"},
};
constexpr int kKmaCodesDielectric[] = {0, 23};
constexpr cls_MemberDescription kKmaDescDiffusivity[] = {
    {"type",
     "Symmetry of the data: 1 (ISOTROPIC), 3 (ORTHOTROPIC) or 6 (ANISOTROPIC) values per row"},
    {"law", "Diffusion law: GENERAL or FICK (Fick's law)"},
};
constexpr int kKmaCodesDiffusivity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescDruckerPrager[] = {
    {"shearCriterion", "Shape of the yield surface in the meridional plane"},
    {"eccentricity", "Flow potential eccentricity (at least 0)"},
    {"testData",
     "Whether the EXPONENTIAL criterion's parameters are fitted from triaxial test data"},
    {"druckerPragerCreep", "Creep of the Drucker-Prager material (absent: no creep)"},
};
constexpr int kKmaCodesDruckerPrager[] = {0, 8, 23};
constexpr cls_MemberDescription kKmaDescDruckerPragerCreep[] = {
    {"law", "Creep law; USER takes it from a user routine and reads no table"},
    {"time", "Time measure of a time-hardening law: TOTAL (analysis time) or CREEP (creep time)"},
};
constexpr int kKmaCodesDruckerPragerCreep[] = {0, 23};
constexpr cls_MemberDescription kKmaDescElastic[] = {
    {"type", "Symmetry of the elastic data, selects the layout of the table's data columns"},
    {"noCompression", "The material carries no compressive stress"},
    {"noTension", "The material carries no tensile stress"},
    {"moduli", "Time scale of the moduli"},
    {"table",
     "The elastic constants, laid out by type (ISOTROPIC: Young's modulus, Poisson's ratio), "
     "then the temperature and field-variable columns"},
    {"failStress", "Fail-stress limits sub-option (absent: none)"},
    {"failStrain", "Fail-strain limits sub-option (absent: none)"},
};
constexpr int kKmaCodesElastic[] = {36, 0, 23};
constexpr cls_MemberDescription kKmaDescElectricalConductivity[] = {
    {"type",
     "Symmetry of the data: 1 (ISOTROPIC), 3 (ORTHOTROPIC) or 6 (ANISOTROPIC) values per row"},
};
constexpr int kKmaCodesElectricalConductivity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescElectrode[] = {
    {"type", "Polarity of the electrode: NEGATIVE or POSITIVE"},
    {"electricalConductivity", "Solid-phase electrical conductivity sub-option"},
    {"electrodeParticleList", "The particle kinds the electrode is made of"},
    {"electrodeParticleLayerList", "The layers of the electrode through its thickness"},
};
constexpr int kKmaCodesElectrode[] = {0, 23};
constexpr cls_MemberDescription kKmaDescElectrodeParticle[] = {
    {"radius", "Particle radius (blank until given)"},
    {"diffusivity", "Solid-phase diffusion in the particle (sub-option)"},
    {"electricalConductivity", "Electrical conduction of the particle (sub-option)"},
};
constexpr int kKmaCodesElectrodeParticle[] = {0, 23};
constexpr cls_MemberDescription kKmaDescElectrodeParticleLayer[] = {
    {"thickness", "Thickness of the layer (blank until given)"},
    {"numElements", "Number of elements across the layer"},
};
constexpr int kKmaCodesElectrodeParticleLayer[] = {0, 23};
constexpr int kKmaCodesElectrolyte[] = {0, 23};
constexpr cls_MemberDescription kKmaDescEos[] = {
    {"type",
     "Form of the equation of state (US_UP: linear shock-particle velocity; P_ALPHA: porous "
     "compaction; USER: a user routine)"},
    {"detonationEnergy", "Detonation energy of an explosive (at least 0)"},
    {"solidTable", "Data of the unreacted solid of an IGNITION_AND_GROWTH equation"},
    {"gasTable", "Data of the reacted gas products of an IGNITION_AND_GROWTH equation"},
    {"eosShear", "Deviatoric response, viscous or elastic (absent: none)"},
};
constexpr int kKmaCodesEos[] = {0, 1, 23};
constexpr cls_MemberDescription kKmaDescEosShear[] = {
    {"type", "VISCOUS (a viscosity per row) or ELASTIC (a shear modulus per row)"},
};
constexpr int kKmaCodesEosShear[] = {0, 23};
constexpr cls_MemberDescription kKmaDescExpansion[] = {
    {"type",
     "Symmetry of the expansion coefficients: 1 (ISOTROPIC), 3 (ORTHOTROPIC), 6 (ANISOTROPIC) or "
     "SHORT_FIBER"},
    {"userSubroutine", "Whether a user routine supplies the thermal strains"},
    {"zero", "Reference temperature of the expansion coefficients"},
};
constexpr int kKmaCodesExpansion[] = {0, 23};
constexpr cls_MemberDescription kKmaDescFailStrain[] = {
    {"temperatureDependency",
     "Whether the limits depend on temperature (a temperature column follows the limits)"},
    {"dependencies",
     "Number of field-variable dependencies (that many field-variable columns close each row)"},
    {"table", "The limit strains, one row per temperature and field-variable point"},
};
constexpr int kKmaCodesFailStrain[] = {0, 23};
constexpr cls_MemberDescription kKmaDescFailStress[] = {
    {"temperatureDependency",
     "Whether the limits depend on temperature (a temperature column follows the limits)"},
    {"dependencies",
     "Number of field-variable dependencies (that many field-variable columns close each row)"},
    {"table", "The limit stresses, one row per temperature and field-variable point"},
};
constexpr int kKmaCodesFailStress[] = {0, 23};
constexpr cls_MemberDescription kKmaDescFieldConstituent[] = {
    {"material", "Name of the material the constituent is made of (in materials)"},
    {"type", "Role in the composite; only an INCLUSION has a shape, aspect ratio and orientation"},
    {"volumeFraction",
     "Volume fraction of the constituent (above 0 and below 1; blank: not given)"},
    {"isotropizationCoefficient",
     "Isotropization coefficient of an inclusion (at least 1; blank: not given)"},
    {"shape", "Shape of an inclusion; it decides the aspect ratio allowed"},
    {"aspectRatio",
     "Aspect ratio of an inclusion: blank for CYLINDER, blank or 1 for SPHERE, below 1 for "
     "OBLATE and PENNY, above 1 for PROLATE"},
    {"orientation",
     "Orientation of the inclusions, and so the table's columns: RANDOM_3D none, RANDOM_2D the "
     "plane's normal (3), FIXED a direction (3), ORIENTATION_TENSOR a11 a22 a33 a12 a13 a23"},
};
constexpr int kKmaCodesFieldConstituent[] = {0, 63, 65, 66, 67, 68, 69, 64, 23};
constexpr cls_MemberDescription kKmaDescFluidLeakoff[] = {
    {"type", "How leakoff is given: COEFFICIENTS (the table) or USER (a user routine)"},
};
constexpr int kKmaCodesFluidLeakoff[] = {0, 23};
constexpr cls_MemberDescription kKmaDescFoam[] = {
    {"hardening", "Hardening of the yield surface under compression: VOLUMETRIC or ISOTROPIC"},
};
constexpr int kKmaCodesFoam[] = {0, 23};
constexpr cls_MemberDescription kKmaDescGapConductance[] = {
    {"pressureDependency",
     "Whether the conductance is given against contact pressure as well as clearance"},
};
constexpr int kKmaCodesGapConductance[] = {0, 23};
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
