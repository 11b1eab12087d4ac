#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKmaDescUniaxialTestData[] = {
    {"smoothing", "Points each side of a data point used to smooth the data (0: no smoothing)"},
    {"lateralNominalStrain",
     "Whether the table adds the measured lateral nominal strain as a third column"},
    {"table",
     "Nominal stress, nominal strain (and lateral nominal strain with lateralNominalStrain); "
     "then temperature and field-variable columns"},
};
constexpr int kKmaCodesUniaxialTestData[] = {0, 23};
constexpr cls_MemberDescription kKmaDescUserMaterial[] = {
    {"type", "Behavior the routine supplies: MECHANICAL, THERMAL or THERMOMECHANICAL"},
    {"unsymm", "Whether the routine's material Jacobian is unsymmetric"},
    {"mechanicalConstants", "Constants passed to the mechanical routine"},
    {"thermalConstants", "Constants passed to the thermal routine"},
    {"effmod", "Whether the routine supplies effective moduli"},
    {"hybridFormulation", "Hybrid element formulation the routine works with"},
};
constexpr cls_MemberDescription kKmaDescUserOutputVariables[] = {
    {"n", "Number of output variables the user routine defines (at least 0)"},
};
constexpr int kKmaCodesUserOutputVariables[] = {15};
constexpr cls_MemberDescription kKmaDescViscoelastic[] = {
    {"domain", "Domain of the data: TIME or FREQUENCY"},
    {"time", "Form of time-domain data (FREQUENCY_DATA: converted from frequency data)"},
    {"frequency",
     "Form of frequency-domain data (FORMULA: power-law formula; TABULAR: moduli against "
     "frequency)"},
    {"type", "ISOTROPIC or TRACTION (the traction response of cohesive elements and gaskets)"},
    {"preload",
     "Kind of preload the data refer to; VOLUMETRIC and UNIAXIAL_VOLUMETRIC not with TRACTION"},
    {"errtol", "Allowed average root-mean-square error of the Prony series fit"},
    {"nmax", "Largest number of Prony series terms of the fit (1 to 13)"},
    {"volumetricTable", "Volumetric test data of the fit, beside the shear data of the table"},
};
constexpr int kKmaCodesViscoelastic[] = {6, 7, 37, 23};
constexpr cls_MemberDescription kKmaDescViscosity[] = {
    {"type", "Viscosity law (NEWTONIAN: viscosity independent of shear rate)"},
};
constexpr int kKmaCodesViscosity[] = {0, 23};
constexpr cls_MemberDescription kKmaDescViscous[] = {
    {"law", "Creep law of the viscous network; USER takes it from a user routine"},
};
constexpr int kKmaCodesViscous[] = {0, 23};
constexpr cls_MemberDescription kKmaDescVolumetricTestData[] = {
    {"smoothing", "Points each side of a data point used to smooth the data (0: no smoothing)"},
    {"volumetricResponse",
     "VOLUMETRIC_DATA (pressure against volume ratio in the table) or POISSON_RATIO "
     "(poissonRatio only)"},
    {"poissonRatio", "Poisson's ratio of a POISSON_RATIO response (-1 to 0.5)"},
    {"table",
     "Pressure, volume ratio (VOLUMETRIC_DATA only); then temperature and field-variable columns"},
};
constexpr int kKmaCodesVolumetricTestData[] = {0, 4, 5, 23};
constexpr int kKmaCodesUserMaterial[] = {23};
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
     kKmaDescUserMaterial, nullptr, kKmaCodesUserMaterial},
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
