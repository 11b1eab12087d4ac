#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKmaDescOrnl[] = {
    {"saturationRateParameter", "Saturation rate parameter"},
    {"applyRateFactor", "Apply rate factor"},
    {"resetHardening", "Reset hardening"},
};
constexpr int kKmaCodesOrnl[] = {9};
constexpr cls_MemberDescription kKmaDescPermeability[] = {
    {"type", "Type"},
    {"specificWeight", "Specific weight"},
    {"inertialDragCoefficient", "Inertial drag coefficient"},
};
constexpr int kKmaCodesPermeability[] = {0};
constexpr cls_MemberDescription kKmaDescPiezoelectric[] = {
    {"type", "Type"},
};
constexpr cls_MemberDescription kKmaDescPlanarTestData[] = {
    {"smoothing", "Smoothing"},
    {"lateralNominalStrain", "Lateral nominal strain"},
};
constexpr int kKmaCodesPlanarTestData[] = {0};
constexpr cls_MemberDescription kKmaDescPlastic[] = {
    {"hardening", "Hardening law"},
    {"rate", "The table carries a strain-rate column after yield stress and plastic strain"},
    {"dataType", "Form of the data for combined hardening"},
    {"strainRangeDependency", "Data depend on the strain range"},
    {"numBackstresses", "Number of backstresses"},
    {"temperatureDependency", "The data depend on temperature"},
    {"dependencies", "Number of field-variable dependencies"},
    {"table", "Yield data"},
    {"rateDependent", "Rate dependence sub-option"},
    {"potential", "Flow potential sub-option"},
    {"cyclicHardening", "Cyclic hardening sub-option"},
    {"ornl", "ORNL constitutive rules sub-option"},
    {"cycledPlastic", "Cycled plastic sub-option"},
    {"annealTemperature", "Annealing temperature sub-option"},
    {"tensileFailure", "Tensile failure sub-option"},
    {"properties", "Number of user properties"},
    {"scaleStress",
     "Stress scale; the default is the largest finite double, which stands for a stress scale "
     "that was not set"},
    {"staticRecovery", "Static recovery"},
    {"extrapolation",
     "Extrapolation of the table beyond its last point; the last member, added in class version "
     "2217"},
};
constexpr int kKmaCodesPlastic[] = {0, 39, 64};
constexpr int kKmaCodesPlasticityCorrection[] = {0};
constexpr cls_MemberDescription kKmaDescPoreFluidExpansion[] = {
    {"zero", "Zero"},
};
constexpr int kKmaCodesPoreFluidExpansion[] = {0};
constexpr cls_MemberDescription kKmaDescPorousElastic[] = {
    {"shear", "Shear"},
};
constexpr int kKmaCodesPorousElastic[] = {0};
constexpr cls_MemberDescription kKmaDescPorousMetalPlasticity[] = {
    {"relativeDensity", "Relative density"},
};
constexpr int kKmaCodesPorousMetalPlasticity[] = {0, 22};
constexpr int kKmaCodesPotential[] = {0};
constexpr cls_MemberDescription kKmaDescRateDependent[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesRateDependent[] = {0};
constexpr cls_MemberDescription kKmaDescRegularization[] = {
    {"rtol", "Rtol"},
    {"strainRateRegularization", "Strain rate regularization"},
};
constexpr cls_MemberDescription kKmaDescShear[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesShear[] = {0};
constexpr cls_MemberDescription kKmaDescShearRetention[] = {
    {"type", "Type"},
};
constexpr int kKmaCodesShearRetention[] = {0};
constexpr int kKmaCodesSoftRockPlasticity[] = {0};
constexpr int kKmaCodesSolubility[] = {0};
constexpr cls_MemberDescription kKmaDescSorption[] = {
    {"lawAbsorption", "Law absorption"},
};
constexpr cls_MemberDescription kKmaDescSpecificHeat[] = {
    {"law", "Law"},
};
constexpr int kKmaCodesSpecificHeat[] = {0};
constexpr cls_MemberDescription kKmaDescSuperElasticity[] = {
    {"nonassociated", "Nonassociated"},
};
constexpr int kKmaCodesSuperElasticity[] = {0};
constexpr int kKmaCodesSwelling[] = {0};
constexpr cls_MemberDescription kKmaDescTensileFailure[] = {
    {"elementDeletion", "Element deletion"},
    {"shear", "Shear"},
    {"pressure", "Pressure"},
};
constexpr int kKmaCodesTensileFailure[] = {0};
constexpr cls_MemberDescription kKmaDescThicknessBehavior[] = {
    {"type", "Type"},
    {"units", "Units"},
    {"contactArea", "Contact area"},
    {"tensileStiffnessFactor", "Tensile stiffness factor"},
};
constexpr int kKmaCodesThicknessBehavior[] = {0, 34, 29};
constexpr int kKmaCodesTransShearElastic[] = {0};
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
     kKmaDescPiezoelectric},
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
     {}},
    {"kmaC_PorousElastic",
     "Porous elasticity: logarithmic bulk modulus and Poisson's ratio or shear modulus.",
     kKmaDescPorousElastic, nullptr, kKmaCodesPorousElastic},
    {"kmaC_PorousMetalPlasticity",
     "Gurson porous metal plasticity: the relative density and the yield parameters.",
     kKmaDescPorousMetalPlasticity, nullptr, kKmaCodesPorousMetalPlasticity},
    {"kmaC_Potential",
     "Anisotropic flow potential of a plastic option: the six yield stress ratios R11 to R23, "
     "possibly temperature and field dependent.",
     {}, nullptr, kKmaCodesPotential},
    {"kmaC_RateDependent",
     "Rate dependence of the yield stress of a plastic option: the law of the overstress and its "
     "data table (multiplier and exponent, Johnson-Cook constants or yield ratios against rate).",
     kKmaDescRateDependent, nullptr, kKmaCodesRateDependent},
    {"kmaC_Regularization",
     "Regularization of rate-dependent data: the tolerance and the strain rate scale.",
     kKmaDescRegularization},
    {"kmaC_Shear",
     "Shear viscosity of an equation of state material.",
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
     kKmaDescSorption},
    {"kmaC_SpecificHeat",
     "SpecificHeat: specific heat at constant volume or constant pressure, possibly temperature "
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
