#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKmaDescUniaxialTestData[] = {
    {"smoothing", "Smoothing"},
    {"lateralNominalStrain", "Lateral nominal strain"},
};
constexpr int kKmaCodesUniaxialTestData[] = {0};
constexpr cls_MemberDescription kKmaDescUserMaterial[] = {
    {"type", "Type"},
    {"unsymm", "Unsymm"},
    {"mechanicalConstants", "Mechanical constants"},
    {"thermalConstants", "Thermal constants"},
    {"effmod", "Effmod"},
    {"hybridFormulation", "Hybrid formulation"},
};
constexpr cls_MemberDescription kKmaDescUserOutputVariables[] = {
    {"n", "N"},
};
constexpr int kKmaCodesUserOutputVariables[] = {15};
constexpr cls_MemberDescription kKmaDescViscoelastic[] = {
    {"domain", "Domain"},
    {"time", "Time"},
    {"frequency", "Frequency"},
    {"type", "Type"},
    {"preload", "Preload"},
    {"errtol", "Errtol"},
    {"nmax", "Nmax"},
    {"volumetricTable", "Volumetric table"},
};
constexpr int kKmaCodesViscoelastic[] = {6, 7, 37};
constexpr cls_MemberDescription kKmaDescViscosity[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesViscosity[] = {0};
constexpr cls_MemberDescription kKmaDescViscous[] = {
    {"law", "Law"},
};
constexpr int kKmaCodesViscous[] = {0};
constexpr cls_MemberDescription kKmaDescVolumetricTestData[] = {
    {"smoothing", "Smoothing"},
    {"volumetricResponse", "Volumetric response"},
    {"poissonRatio", "Poisson ratio"},
};
constexpr int kKmaCodesVolumetricTestData[] = {0, 4, 5};
constexpr cls_ClassDescription kKmaDescriptions5[] = {
    {"kmaC_UniaxialTestData",
     "Uniaxial test data: measured nominal stress against nominal strain in simple tension or "
     "compression, for a Mullins effect (the unloading curves) or a hyperelastic or hyperfoam fit.",
     kKmaDescUniaxialTestData, nullptr, kKmaCodesUniaxialTestData},
    {"kmaC_UserDefinedField",
     "Field variables defined by a user routine at each material point; no data of its own.",
     {}},
    {"kmaC_UserMaterial",
     "Constitutive behavior supplied by a user routine: its mechanical and thermal constants.",
     kKmaDescUserMaterial},
    {"kmaC_UserOutputVariables",
     "The number of output variables a user routine defines.",
     kKmaDescUserOutputVariables, nullptr, kKmaCodesUserOutputVariables},
    {"kmaC_Viscoelastic",
     "Linear viscoelasticity in the time or frequency domain: the data form, the Prony series "
     "limits (nmax, errtol) and a preload.",
     kKmaDescViscoelastic, nullptr, kKmaCodesViscoelastic},
    {"kmaC_Viscosity",
     "Viscosity of a fluid, possibly temperature and field dependent.",
     kKmaDescViscosity, nullptr, kKmaCodesViscosity},
    {"kmaC_Viscous",
     "Viscous behavior of a two-layer viscoplastic model: the law and its data.",
     kKmaDescViscous, nullptr, kKmaCodesViscous},
    {"kmaC_VolumetricTestData",
     "Volumetric test data of a hyperelastic or hyperfoam fit: pressure against volume ratio "
     "(`volumetricResponse` VOLUMETRIC_DATA), or only a Poisson's ratio for the compressibility "
     "(POISSON_RATIO, the table then unused).",
     kKmaDescVolumetricTestData, nullptr, kKmaCodesVolumetricTestData},
};
}  // namespace

std::span<const cls_ClassDescription> kmaC_Descriptions5Table() { return kKmaDescriptions5; }
