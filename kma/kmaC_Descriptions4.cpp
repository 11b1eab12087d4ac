#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKmaDescOrnl[] = {
    {"saturationRateParameter", "Saturation rate of the kinematic shift (at least 0)"},
    {"applyRateFactor", "Whether the rate factor of the ORNL rules scales the kinematic shift"},
    {"resetHardening", "Whether the cyclic hardening is reset at each strain reversal"},
};
constexpr int kKmaCodesOrnl[] = {9};
constexpr cls_MemberDescription kKmaDescPermeability[] = {
    {"type",
     "Symmetry of the data: 1 (ISOTROPIC), 3 (ORTHOTROPIC) or 6 (ANISOTROPIC) values per row"},
    {"specificWeight", "Specific weight of the wetting fluid"},
    {"inertialDragCoefficient", "Coefficient of the inertial (Forchheimer) drag of the flow"},
};
constexpr int kKmaCodesPermeability[] = {0, 23};
constexpr cls_MemberDescription kKmaDescPiezoelectric[] = {
    {"type", "Form of the coupling: STRESS (stress coefficients) or STRAIN (strain coefficients)"},
};
constexpr cls_MemberDescription kKmaDescPlanarTestData[] = {
    {"smoothing", "Points each side of a data point used to smooth the data (0: no smoothing)"},
    {"lateralNominalStrain",
     "Whether the table adds the measured lateral nominal strain as a third column"},
    {"table",
     "Nominal stress, nominal strain (and lateral nominal strain with lateralNominalStrain); "
     "then temperature and field-variable columns"},
};
constexpr int kKmaCodesPlanarTestData[] = {0, 23};
constexpr cls_MemberDescription kKmaDescPlastic[] = {
    {"hardening",
     "Hardening law; it decides the table's layout and rules (tensileFailure only with ISOTROPIC "
     "or JOHNSON_COOK)"},
    {"rate", "The table carries a strain-rate column after yield stress and plastic strain"},
    {"dataType",
     "Form of COMBINED hardening data: HALF_CYCLE, PARAMETERS or STABILIZED (PARAMETERS skips "
     "the first-yield rule)"},
    {"strainRangeDependency", "Whether the COMBINED hardening data depend on the strain range"},
    {"numBackstresses", "Number of backstresses of kinematic or combined hardening"},
    {"table",
     "Yield data by hardening law (ISOTROPIC: yield stress, plastic strain from 0, strain rate "
     "with rate), then temperature and field-variable columns; unused for USER"},
    {"rateDependent", "Rate dependence of the yield stress (absent: rate independent)"},
    {"potential", "Anisotropic flow potential by yield stress ratios (absent: isotropic)"},
    {"cyclicHardening", "Isotropic part of COMBINED hardening (absent: none)"},
    {"ornl", "ORNL constitutive rules for austenitic steels (absent: not applied)"},
    {"cycledPlastic", "Cycled yield data under the ORNL rules"},
    {"annealTemperature", "Anneal temperature above which the plastic strain is reset to zero"},
    {"tensileFailure",
     "Tensile failure by a hydrostatic cutoff stress; only with ISOTROPIC or JOHNSON_COOK "
     "hardening"},
    {"properties", "Number of constants of USER hardening"},
    {"scaleStress", "Stress scale (blank: not set)"},
    {"staticRecovery", "Whether the hardening recovers statically over time"},
    {"extrapolation",
     "How the yield data are extrapolated beyond the last point: CONSTANT or LINEAR"},
};
constexpr int kKmaCodesPlastic[] = {0, 23, 39, 64};
constexpr int kKmaCodesPlasticityCorrection[] = {0, 23};
constexpr cls_MemberDescription kKmaDescPoreFluidExpansion[] = {
    {"zero", "Reference temperature of the expansion coefficient"},
};
constexpr int kKmaCodesPoreFluidExpansion[] = {0, 23};
constexpr cls_MemberDescription kKmaDescPorousElastic[] = {
    {"shear", "How the shear response is given: POISSON (Poisson's ratio) or G (shear modulus)"},
};
constexpr int kKmaCodesPorousElastic[] = {0, 23};
constexpr cls_MemberDescription kKmaDescPorousMetalPlasticity[] = {
    {"relativeDensity", "Initial relative density: 1 minus the void volume fraction (at most 1)"},
};
constexpr int kKmaCodesPorousMetalPlasticity[] = {0, 22, 23};
constexpr cls_MemberDescription kKmaDescPotential[] = {
    {"table",
     "Yield stress ratios R11, R22, R33, R12, R13, R23; then temperature and field-variable "
     "columns"},
};
constexpr int kKmaCodesPotential[] = {0, 23};
constexpr cls_MemberDescription kKmaDescRateDependent[] = {
    {"type",
     "Law of the rate dependence: POWER_LAW (multiplier, exponent), JOHNSON_COOK (its constants) "
     "or YIELD_RATIO (ratio against rate)"},
};
constexpr int kKmaCodesRateDependent[] = {0, 23};
constexpr cls_MemberDescription kKmaDescRegularization[] = {
    {"rtol", "Tolerance of the regularization of rate-dependent data"},
    {"strainRateRegularization",
     "Scale on which strain rates are regularized: LOGARITHMIC or LINEAR"},
};
constexpr cls_MemberDescription kKmaDescShear[] = {
    {"type", "ELASTIC (a shear modulus per row) or VISCOUS (a viscosity per row)"},
};
constexpr int kKmaCodesShear[] = {0, 23};
constexpr cls_MemberDescription kKmaDescShearRetention[] = {
    {"type",
     "How retention is given: RETENTION_FACTOR (against crack opening strain) or POWER_LAW (its "
     "parameters)"},
};
constexpr int kKmaCodesShearRetention[] = {0, 23};
constexpr int kKmaCodesSoftRockPlasticity[] = {0, 23};
constexpr int kKmaCodesSolubility[] = {0, 23};
constexpr cls_MemberDescription kKmaDescSorption[] = {
    {"lawAbsorption",
     "Absorption law: TABULAR (saturation against pore pressure) or LOG (a logarithmic law)"},
};
constexpr cls_MemberDescription kKmaDescSpecificHeat[] = {
    {"law", "Whether the specific heat is at constant volume or at constant pressure"},
};
constexpr int kKmaCodesSpecificHeat[] = {0, 23};
constexpr cls_MemberDescription kKmaDescSuperElasticity[] = {
    {"nonassociated", "Whether the transformation strain flows non-associated"},
};
constexpr int kKmaCodesSuperElasticity[] = {0, 23};
constexpr int kKmaCodesSwelling[] = {0, 23};
constexpr cls_MemberDescription kKmaDescTensileFailure[] = {
    {"elementDeletion", "Whether a failed element is deleted"},
    {"shear", "How the deviatoric stresses fail: DUCTILE or BRITTLE"},
    {"pressure", "How the pressure stress fails: DUCTILE or BRITTLE"},
};
constexpr int kKmaCodesTensileFailure[] = {0, 23};
constexpr cls_MemberDescription kKmaDescThicknessBehavior[] = {
    {"type", "Kind of thickness behavior: ELASTIC_PLASTIC or DAMAGE"},
    {"units", "Units of the loading data: STRESS (pressure) or FORCE (force per unit length)"},
    {"contactArea", "Gasket contact area, only with FORCE units (0: none)"},
    {"tensileStiffnessFactor",
     "Tensile stiffness as a fraction of the initial compressive stiffness (above 0)"},
};
constexpr int kKmaCodesThicknessBehavior[] = {0, 34, 29, 23};
constexpr int kKmaCodesTransShearElastic[] = {0, 23};
constexpr int kKmaCodesPiezoelectric[] = {23};
constexpr cls_MemberDescription kKmaDescPorousBulkModuli[] = {
    {"table",
     "Bulk modulus of the solid grains, bulk modulus of the pore fluid; then a temperature column"},
};
constexpr int kKmaCodesPorousBulkModuli[] = {23};
constexpr int kKmaCodesSorption[] = {23};
constexpr cls_ClassDescription kKmaDescriptions4[] = {
    {"kmaC_Ornl",
     "The ORNL constitutive rules for austenitic steels in a plastic option: the saturation rate "
     "of the kinematic shift and whether the cyclic hardening is reset at each reversal.",
     kKmaDescOrnl, nullptr, kKmaCodesOrnl},
    {"kmaC_Permeability",
     "Permeability of a porous medium by symmetry, the specific weight of the fluid and its "
     "inertial drag.",
     kKmaDescPermeability, nullptr, kKmaCodesPermeability},
    {"kmaC_Piezoelectric",
     "Piezoelectric coupling given as stress or strain coefficients.",
     kKmaDescPiezoelectric, nullptr, kKmaCodesPiezoelectric},
    {"kmaC_PlanarTestData",
     "Planar (pure shear) test data: measured nominal stress against nominal strain, for a "
     "Mullins effect (the unloading curves) or a hyperelastic or hyperfoam fit.",
     kKmaDescPlanarTestData, nullptr, kKmaCodesPlanarTestData},
    {"kmaC_Plastic",
     "Metal plasticity: the hardening law, the yield data table and seven optional sub-options.",
     kKmaDescPlastic, nullptr, kKmaCodesPlastic},
    {"kmaC_PlasticityCorrection",
     "Correction of the plastic flow for strain-rate and temperature effects.",
     {}, nullptr, kKmaCodesPlasticityCorrection},
    {"kmaC_PoreFluidExpansion",
     "Thermal expansion of the pore fluid.",
     kKmaDescPoreFluidExpansion, nullptr, kKmaCodesPoreFluidExpansion},
    {"kmaC_PorousBulkModuli",
     "Bulk moduli of the solid grains and of the permeating fluid.",
     kKmaDescPorousBulkModuli, nullptr, kKmaCodesPorousBulkModuli},
    {"kmaC_PorousElastic",
     "Porous elasticity: logarithmic bulk modulus and Poisson's ratio or shear modulus.",
     kKmaDescPorousElastic, nullptr, kKmaCodesPorousElastic},
    {"kmaC_PorousMetalPlasticity",
     "Gurson porous metal plasticity: the relative density and the yield parameters.",
     kKmaDescPorousMetalPlasticity, nullptr, kKmaCodesPorousMetalPlasticity},
    {"kmaC_Potential",
     "Anisotropic flow potential of a plastic option: the six yield stress ratios R11 to R23, "
     "possibly temperature and field dependent.",
     kKmaDescPotential, nullptr, kKmaCodesPotential},
    {"kmaC_RateDependent",
     "Rate dependence of the yield stress of a plastic option: the law of the overstress and its "
     "data table (multiplier and exponent, Johnson-Cook constants or yield ratios against rate).",
     kKmaDescRateDependent, nullptr, kKmaCodesRateDependent},
    {"kmaC_Regularization",
     "Regularization of rate-dependent data: the tolerance and the strain rate scale.",
     kKmaDescRegularization},
    {"kmaC_Shear",
     "Deviatoric response of an equation-of-state material: elastic (a shear modulus per row) or "
     "viscous (a viscosity per row).",
     kKmaDescShear, nullptr, kKmaCodesShear},
    {"kmaC_ShearRetention",
     "Post-cracking shear retention of a brittle cracking material, given as retention factors "
     "over crack opening strain or as the parameters of a power law.",
     kKmaDescShearRetention, nullptr, kKmaCodesShearRetention},
    {"kmaC_SoftRockPlasticity",
     "Soft rock plasticity: yield surface and hardening parameters.",
     {}, nullptr, kKmaCodesSoftRockPlasticity},
    {"kmaC_Solubility",
     "Solubility of a diffusing species.",
     {}, nullptr, kKmaCodesSolubility},
    {"kmaC_Sorption",
     "Sorption of a partially saturated porous medium: absorption law and data.",
     kKmaDescSorption, nullptr, kKmaCodesSorption},
    {"kmaC_SpecificHeat",
     "Specific heat at constant volume or constant pressure, possibly temperature "
     "and field dependent.",
     kKmaDescSpecificHeat, nullptr, kKmaCodesSpecificHeat},
    {"kmaC_SuperElasticity",
     "Superelastic shape memory alloy behavior: transformation stresses and strains.",
     kKmaDescSuperElasticity, nullptr, kKmaCodesSuperElasticity},
    {"kmaC_Swelling",
     "Volumetric swelling strain rate of a material.",
     {}, nullptr, kKmaCodesSwelling},
    {"kmaC_TensileFailure",
     "Tensile failure of a plastic option: the hydrostatic cutoff stress, how the deviatoric and "
     "pressure stresses fail, and whether failed elements are deleted.",
     kKmaDescTensileFailure, nullptr, kKmaCodesTensileFailure},
    {"kmaC_ThicknessBehavior",
     "Gasket thickness-direction behavior: loading and unloading data in stress or force units.",
     kKmaDescThicknessBehavior, nullptr, kKmaCodesThicknessBehavior},
    {"kmaC_TransShearElastic",
     "Transverse shear stiffness of a material.",
     {}, nullptr, kKmaCodesTransShearElastic},
};
}  // namespace

std::span<const cls_ClassDescription> kmaC_Descriptions4Table() { return kKmaDescriptions4; }
