#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr int kKmaCodesGapConvection[] = {0};
constexpr cls_MemberDescription kKmaDescGapFlow[] = {
    {"type", "Type"},
    {"kmax", "Kmax"},
};
constexpr int kKmaCodesGapFlow[] = {0};
constexpr int kKmaCodesGapRadiation[] = {0};
constexpr cls_MemberDescription kKmaDescHyperelastic[] = {
    {"materialType", "Material type"},
    {"type", "Type"},
    {"testData", "Test data"},
    {"n", "N"},
    {"moduliTimeScale", "Moduli time scale"},
    {"poissonRatio", "Poisson ratio"},
    {"behaviorType", "Behavior type"},
    {"uniaxialTests", "Uniaxial tests"},
    {"biaxialTests", "Biaxial tests"},
    {"planarTests", "Planar tests"},
    {"volumetricTests", "Volumetric tests"},
};
constexpr int kKmaCodesHyperelastic[] = {0, 26, 19, 20, 21, 4, 5, 11};
constexpr cls_MemberDescription kKmaDescHyperfoam[] = {
    {"testData", "Test data"},
    {"poisson", "Poisson"},
    {"n", "N"},
    {"moduli", "Moduli"},
};
constexpr int kKmaCodesHyperfoam[] = {0, 19, 20, 4, 5};
constexpr cls_MemberDescription kKmaDescHypoelastic[] = {
    {"user", "User"},
};
constexpr int kKmaCodesHypoelastic[] = {0};
constexpr cls_MemberDescription kKmaDescInelasticHeatFraction[] = {
    {"fraction", "Fraction"},
};
constexpr int kKmaCodesInelasticHeatFraction[] = {22};
constexpr cls_MemberDescription kKmaDescJouleHeatFraction[] = {
    {"fraction", "Fraction"},
};
constexpr int kKmaCodesJouleHeatFraction[] = {22};
constexpr cls_MemberDescription kKmaDescLowDensityFoam[] = {
    {"elementRemoval", "Element removal"},
    {"maxAllowablePrincipalStress", "Max allowable principal stress"},
};
constexpr int kKmaCodesLowDensityFoam[] = {0, 50};
constexpr cls_MemberDescription kKmaDescMagneticPermeability[] = {
    {"type", "Type"},
    {"nonlinearBH", "Nonlinear BH"},
};
constexpr int kKmaCodesMagneticPermeability[] = {0, 58, 59, 56, 57};
constexpr cls_MemberDescription kKmaDescMaterial[] = {
    {"acousticMedium", "Acoustic medium"},
    {"brittleCracking", "Brittle cracking"},
    {"capPlasticity", "Cap plasticity"},
    {"castIronPlasticity", "Cast iron plasticity"},
    {"clayPlasticity", "Clay plasticity"},
    {"concrete", "Concrete"},
    {"concreteDamagedPlasticity", "Concrete damaged plasticity"},
    {"conductivity", "Conductivity"},
    {"creep", "Creep"},
    {"foam", "Foam"},
    {"ductileDamageInitiation", "Ductile damage initiation"},
    {"fldDamageInitiation", "Fld damage initiation"},
    {"flsdDamageInitiation", "Flsd damage initiation"},
    {"johnsonCookDamageInitiation", "Johnson cook damage initiation"},
    {"maxeDamageInitiation", "Maxe damage initiation"},
    {"maxsDamageInitiation", "Maxs damage initiation"},
    {"maxpeDamageInitiation", "Maxpe damage initiation"},
    {"maxpsDamageInitiation", "Maxps damage initiation"},
    {"mkDamageInitiation", "Mk damage initiation"},
    {"msfldDamageInitiation", "Msfld damage initiation"},
    {"quadeDamageInitiation", "Quade damage initiation"},
    {"quadsDamageInitiation", "Quads damage initiation"},
    {"shearDamageInitiation", "Shear damage initiation"},
    {"hashinDamageInitiation", "Hashin damage initiation"},
    {"damping", "Damping"},
    {"deformationPlasticity", "Deformation plasticity"},
    {"density", "Density"},
    {"depvar", "Depvar"},
    {"dielectric", "Dielectric"},
    {"diffusivity", "Diffusivity"},
    {"druckerPrager", "Drucker prager"},
    {"elastic", "Elastic"},
    {"electricalConductivity", "Electrical conductivity"},
    {"eos", "Eos"},
    {"expansion", "Expansion"},
    {"fluidLeakoff", "Fluid leakoff"},
    {"gapFlow", "Gap flow"},
    {"thicknessBehavior", "Thickness behavior"},
    {"transShearElastic", "Trans shear elastic"},
    {"membraneElastic", "Membrane elastic"},
    {"gel", "Gel"},
    {"heatGeneration", "Heat generation"},
    {"hyperelastic", "Hyperelastic"},
    {"hyperfoam", "Hyperfoam"},
    {"hypoelastic", "Hypoelastic"},
    {"inelasticHeatFraction", "Inelastic heat fraction"},
    {"jouleHeatFraction", "Joule heat fraction"},
    {"latentHeat", "Latent heat"},
    {"lowDensityFoam", "Low density foam"},
    {"magneticPermeability", "Magnetic permeability"},
    {"mohrCoulomb", "Mohr coulomb"},
    {"moistureSwelling", "Moisture swelling"},
    {"mullinsEffect", "Mullins effect"},
    {"permeability", "Permeability"},
    {"piezoelectric", "Piezoelectric"},
    {"plastic", "Plastic"},
    {"poreFluidExpansion", "Pore fluid expansion"},
    {"porousBulkModuli", "Porous bulk moduli"},
    {"porousElastic", "Porous elastic"},
    {"porousMetalPlasticity", "Porous metal plasticity"},
    {"regularization", "Regularization"},
    {"shear", "Shear"},
    {"solubility", "Solubility"},
    {"sorption", "Sorption"},
    {"specificHeat", "Specific heat"},
    {"swelling", "Swelling"},
    {"userDefinedField", "User defined field"},
    {"userMaterial", "User material"},
    {"userOutputVariables", "User output variables"},
    {"viscoelastic", "Viscoelastic"},
    {"viscosity", "Viscosity"},
    {"viscous", "Viscous"},
    {"description", "A free text describing it"},
    {"materialIdentifier", "Material identifier"},
    {"softRockPlasticity", "Soft rock plasticity"},
    {"superElasticity", "Super elasticity"},
    {"meanFieldHomogenization", "Mean field homogenization"},
    {"gapConductance", "Gap conductance"},
    {"gapConvection", "Gap convection"},
    {"gapRadiation", "Gap radiation"},
    {"crushStress", "Crush stress"},
    {"plasticityCorrection", "Plasticity correction"},
    {"laRC05DamageInitiation", "La RC05 damage initiation"},
    {"hosfordCoulombDamageInitiation", "Hosford coulomb damage initiation"},
    {"electrolyte", "Electrolyte"},
    {"electrode", "Electrode"},
};
constexpr cls_MemberDescription kKmaDescMaterialTable[] = {
    {"allowEmptyFirstRow", "Allow empty first row"},
};
constexpr int kKmaCodesMaterialTable[] = {23};
constexpr cls_MemberDescription kKmaDescMeanFieldHomogenization[] = {
    {"formulation", "Formulation"},
    {"isotropization", "Isotropization"},
    {"uniformMatrixStrain", "Uniform matrix strain"},
    {"angleIncrement", "Angle increment"},
    {"constituents", "Constituents"},
};
constexpr int kKmaCodesMeanFieldHomogenization[] = {0, 62};
constexpr int kKmaCodesMembraneElastic[] = {0};
constexpr cls_MemberDescription kKmaDescMohrCoulomb[] = {
    {"deviatoricEccentricity", "Deviatoric eccentricity"},
    {"meridionalEccentricity", "Meridional eccentricity"},
    {"useTensionCutoff", "Use tension cutoff"},
};
constexpr int kKmaCodesMohrCoulomb[] = {0, 8, 35};
constexpr cls_MemberDescription kKmaDescMullinsEffect[] = {
    {"definition", "Definition"},
    {"properties", "Properties"},
    {"uniaxialTests", "Uniaxial tests"},
    {"biaxialTests", "Biaxial tests"},
    {"planarTests", "Planar tests"},
};
constexpr int kKmaCodesMullinsEffect[] = {0, 11, 46, 43, 42, 41, 44, 25, 47, 45};
constexpr cls_ClassDescription kKmaDescriptions3[] = {
    {"kmaC_GapConvection",
     "Heat convection across a gap.",
     {}, nullptr, kKmaCodesGapConvection},
    {"kmaC_GapFlow",
     "Tangential flow in a gap of a cohesive element: the fluid law and the permeability limit.",
     kKmaDescGapFlow, nullptr, kKmaCodesGapFlow},
    {"kmaC_GapRadiation",
     "Heat radiation across a gap: emissivities and view factors.",
     {}, nullptr, kKmaCodesGapRadiation},
    {"kmaC_Gel",
     "Gel swelling: radius, saturated radius, growth rate and volume fraction per row.",
     {}},
    {"kmaC_HeatGeneration",
     "Heat generation by a user routine; it has no data of its own.",
     {}},
    {"kmaC_Hyperelastic",
     "Hyperelastic behavior: the strain energy potential and its order, given by coefficients or "
     "by test data, and the time scale of the moduli.",
     kKmaDescHyperelastic, nullptr, kKmaCodesHyperelastic},
    {"kmaC_Hyperfoam",
     "Hyperelastic foam: the order of the potential, given by coefficients or by test data.",
     kKmaDescHyperfoam, nullptr, kKmaCodesHyperfoam},
    {"kmaC_Hypoelastic",
     "Hypoelastic moduli against the first strain invariant, or from a user routine.",
     kKmaDescHypoelastic, nullptr, kKmaCodesHypoelastic},
    {"kmaC_InelasticHeatFraction",
     "Fraction of inelastic dissipation that becomes heat.",
     kKmaDescInelasticHeatFraction, nullptr, kKmaCodesInelasticHeatFraction},
    {"kmaC_JouleHeatFraction",
     "Fraction of electric energy dissipated as heat.",
     kKmaDescJouleHeatFraction, nullptr, kKmaCodesJouleHeatFraction},
    {"kmaC_LatentHeat",
     "Latent heat of phase changes: heat, solidus and liquidus temperatures per row.",
     {}},
    {"kmaC_LowDensityFoam",
     "Low-density foam from uniaxial test data, with optional element removal above a principal "
     "tensile stress.",
     kKmaDescLowDensityFoam, nullptr, kKmaCodesLowDensityFoam},
    {"kmaC_MagneticPermeability",
     "Magnetic permeability by symmetry, linear or by a nonlinear B-H curve, possibly frequency "
     "dependent.",
     kKmaDescMagneticPermeability, nullptr, kKmaCodesMagneticPermeability},
    {"kmaC_Material",
     "A material: one fixed, named slot per kind of material behavior, each empty or holding one "
     "option, and two strings.",
     kKmaDescMaterial},
    {"kmaC_MaterialTable",
     "The data table of a tabular material option: rows of doubles (blank cells are stored as "
     "0.0) and whether the first row may be all zeros.",
     kKmaDescMaterialTable, nullptr, kKmaCodesMaterialTable},
    {"kmaC_MeanFieldHomogenization",
     "Mean-field homogenization of a composite: the averaging scheme, the isotropization of the "
     "inclusions' response, the angle increment of the orientation integration and the names of "
     "the constituents (matrix and inclusions) in the model's constituent repository.",
     kKmaDescMeanFieldHomogenization, nullptr, kKmaCodesMeanFieldHomogenization},
    {"kmaC_MembraneElastic",
     "Membrane elasticity of a material, possibly temperature and field dependent.",
     {}, nullptr, kKmaCodesMembraneElastic},
    {"kmaC_MohrCoulomb",
     "Mohr-Coulomb plasticity: friction and dilation angles and the flow potential eccentricities.",
     kKmaDescMohrCoulomb, nullptr, kKmaCodesMohrCoulomb},
    {"kmaC_MoistureSwelling",
     "Moisture-driven swelling strain against saturation.",
     {}},
    {"kmaC_MullinsEffect",
     "Mullins effect: the softening of a filled elastomer on reloading, given by the constants r, "
     "m and beta of the pseudo-elastic damage model (CONSTANTS), by a user subroutine with "
     "`properties` constants (USER) or by unloading-reloading test data in three lists "
     "(TEST_DATA).",
     kKmaDescMullinsEffect, nullptr, kKmaCodesMullinsEffect},
};
}  // namespace

std::span<const cls_ClassDescription> kmaC_Descriptions3Table() { return kKmaDescriptions3; }
