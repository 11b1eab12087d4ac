#include "kma/kmaC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr int kKmaCodesGapConvection[] = {0, 23};
constexpr cls_MemberDescription kKmaDescGapFlow[] = {
    {"type", "Flow law of the fluid in the gap; USER takes it from a user routine"},
    {"kmax", "Upper limit of the gap's tangential permeability"},
};
constexpr int kKmaCodesGapFlow[] = {0, 23};
constexpr int kKmaCodesGapRadiation[] = {0, 23};
constexpr cls_MemberDescription kKmaDescHyperelastic[] = {
    {"materialType", "Whether the response is ISOTROPIC or ANISOTROPIC"},
    {"type", "Strain energy potential; UNKNOWN (not chosen) only with testData"},
    {"testData",
     "Whether the coefficients are fitted from the test lists rather than given in the table"},
    {"n", "Order of the potential (1 to 6; at most 2 for POLYNOMIAL with test data)"},
    {"moduliTimeScale",
     "Whether the moduli are long-term or instantaneous (for use with viscoelasticity)"},
    {"poissonRatio",
     "Poisson's ratio that sets the compressibility of a fit from test data (-1 to 0.5)"},
    {"behaviorType", "Whether the material is treated as incompressible or compressible"},
    {"uniaxialTests", "Uniaxial tests of the fit (used only with testData)"},
    {"biaxialTests", "Equibiaxial tests of the fit (used only with testData)"},
    {"planarTests", "Planar tests of the fit (used only with testData)"},
    {"volumetricTests", "Volumetric tests of the fit (used only with testData)"},
};
constexpr int kKmaCodesHyperelastic[] = {0, 26, 19, 20, 21, 4, 5, 23, 11};
constexpr cls_MemberDescription kKmaDescHyperfoam[] = {
    {"testData",
     "Whether the coefficients are fitted from test data rather than given in the table"},
    {"poisson", "Effective Poisson's ratio of a fit from test data (-1 to 0.5)"},
    {"n", "Order of the strain energy potential (1 to 6)"},
    {"moduli", "Whether the moduli are long-term or instantaneous (for use with viscoelasticity)"},
};
constexpr int kKmaCodesHyperfoam[] = {0, 19, 20, 4, 5, 23};
constexpr cls_MemberDescription kKmaDescHypoelastic[] = {
    {"user", "Whether a user routine supplies the moduli instead of the table"},
};
constexpr int kKmaCodesHypoelastic[] = {0, 23};
constexpr cls_MemberDescription kKmaDescInelasticHeatFraction[] = {
    {"fraction", "Fraction of the inelastic dissipation that becomes heat (at most 1)"},
};
constexpr int kKmaCodesInelasticHeatFraction[] = {22};
constexpr cls_MemberDescription kKmaDescJouleHeatFraction[] = {
    {"fraction", "Fraction of the electric energy that is released as heat (at most 1)"},
};
constexpr int kKmaCodesJouleHeatFraction[] = {22};
constexpr cls_MemberDescription kKmaDescLowDensityFoam[] = {
    {"elementRemoval",
     "Whether an element is removed when a principal stress exceeds maxAllowablePrincipalStress"},
    {"maxAllowablePrincipalStress",
     "Largest principal tensile stress an element bears (above 0 when elementRemoval)"},
};
constexpr int kKmaCodesLowDensityFoam[] = {0, 50, 23};
constexpr cls_MemberDescription kKmaDescMagneticPermeability[] = {
    {"type",
     "Symmetry of the data: 1 (ISOTROPIC), 3 (ORTHOTROPIC) or 6 (ANISOTROPIC) values per row"},
    {"nonlinearBH",
     "Whether the table is a B-H curve: from (0, 0), at least two rows, not ANISOTROPIC, not "
     "frequency dependent"},
};
constexpr int kKmaCodesMagneticPermeability[] = {0, 58, 59, 56, 57, 23};
constexpr cls_MemberDescription kKmaDescMaterial[] = {
    {"acousticMedium", "Acoustic medium: the bulk modulus and volumetric drag of a fluid"},
    {"brittleCracking", "Brittle cracking: cracking stress and post-cracking tension stiffening"},
    {"capPlasticity", "Modified Drucker-Prager cap plasticity, with its creep sub-options"},
    {"castIronPlasticity", "Gray cast iron plasticity (plastic Poisson's ratio in tension)"},
    {"clayPlasticity", "Critical state clay plasticity"},
    {"concrete", "Smeared crack concrete: compressive yield stress against plastic strain"},
    {"concreteDamagedPlasticity",
     "Concrete damaged plasticity: dilation angle, eccentricity, fb0/fc0, K, viscosity"},
    {"conductivity", "Thermal conductivity, for heat transfer"},
    {"creep", "Creep law and its data"},
    {"foam", "Crushable foam plasticity"},
    {"ductileDamageInitiation",
     "Onset of ductile damage: equivalent plastic strain at onset against stress triaxiality"},
    {"fldDamageInitiation",
     "Onset of damage by a forming limit diagram (FLD) of major against minor strain"},
    {"flsdDamageInitiation", "Onset of damage by a forming limit stress diagram (FLSD)"},
    {"johnsonCookDamageInitiation", "Onset of damage by the Johnson-Cook criterion"},
    {"maxeDamageInitiation", "Onset of damage at a maximum nominal strain"},
    {"maxsDamageInitiation", "Onset of damage at a maximum nominal stress"},
    {"maxpeDamageInitiation", "Onset of damage at a maximum principal strain"},
    {"maxpsDamageInitiation", "Onset of damage at a maximum principal stress"},
    {"mkDamageInitiation",
     "Onset of damage by the Marciniak-Kuczynski (M-K) groove analysis of sheet necking"},
    {"msfldDamageInitiation",
     "Onset of damage by the Mueschenborn-Sonne forming limit diagram (MSFLD)"},
    {"quadeDamageInitiation", "Onset of damage by a quadratic interaction of nominal strains"},
    {"quadsDamageInitiation", "Onset of damage by a quadratic interaction of nominal stresses"},
    {"shearDamageInitiation",
     "Onset of shear damage: equivalent plastic strain at onset against the shear stress ratio"},
    {"hashinDamageInitiation",
     "Onset of damage in a fibre composite by the Hashin criteria (four failure modes)"},
    {"damping", "Rayleigh and structural damping factors"},
    {"deformationPlasticity", "Ramberg-Osgood deformation plasticity"},
    {"density", "Mass density"},
    {"depvar", "Number of solution-dependent state variables of a user material"},
    {"dielectric", "Dielectric permittivity"},
    {"diffusivity", "Mass diffusivity"},
    {"druckerPrager", "Extended Drucker-Prager plasticity, with its creep sub-option"},
    {"elastic", "Linear elastic behavior, with its fail-stress and fail-strain limits"},
    {"electricalConductivity",
     "Electrical conductivity, for coupled thermal-electric and Joule heating analyses"},
    {"eos", "Equation of state: pressure against density and internal energy"},
    {"expansion", "Thermal expansion coefficients"},
    {"fluidLeakoff", "Fluid leakoff through the faces of pore pressure cohesive elements"},
    {"gapFlow", "Tangential fluid flow in the gap of pore pressure cohesive elements"},
    {"thicknessBehavior", "Gasket behavior through the thickness: loading and unloading data"},
    {"transShearElastic", "Transverse shear stiffness for shells and beams"},
    {"membraneElastic", "Membrane elasticity of a gasket"},
    {"gel", "Gel swelling: radius, saturated radius, growth rate and volume fraction"},
    {"heatGeneration", "Heat generation by a user routine"},
    {"hyperelastic",
     "Hyperelasticity by a strain energy potential, from coefficients or test data"},
    {"hyperfoam", "Hyperelastic foam, from coefficients or test data"},
    {"hypoelastic",
     "Hypoelastic moduli against the first strain invariant, or from a user routine"},
    {"inelasticHeatFraction", "Fraction of inelastic dissipation that becomes heat"},
    {"jouleHeatFraction", "Fraction of electric energy dissipated as heat"},
    {"latentHeat", "Latent heat of phase changes with their solidus and liquidus temperatures"},
    {"lowDensityFoam", "Low-density foam from uniaxial test data"},
    {"magneticPermeability", "Magnetic permeability, linear or by a nonlinear B-H curve"},
    {"mohrCoulomb", "Mohr-Coulomb plasticity"},
    {"moistureSwelling", "Moisture-driven swelling strain against saturation"},
    {"mullinsEffect", "Mullins effect: softening of a filled elastomer on reloading"},
    {"permeability", "Permeability of a porous medium to its pore fluid"},
    {"piezoelectric", "Piezoelectric coupling of stress or strain and electric field"},
    {"plastic", "Metal plasticity: hardening law, yield data and their sub-options"},
    {"poreFluidExpansion", "Thermal expansion of the pore fluid"},
    {"porousBulkModuli", "Bulk moduli of the solid grains and of the pore fluid"},
    {"porousElastic",
     "Porous elasticity: logarithmic bulk modulus with a Poisson's ratio or shear modulus"},
    {"porousMetalPlasticity", "Gurson porous metal plasticity"},
    {"regularization", "Regularization of rate-dependent data"},
    {"shear", "Deviatoric response of an equation-of-state material"},
    {"solubility", "Solubility of a diffusing species"},
    {"sorption", "Sorption of a partially saturated porous medium"},
    {"specificHeat", "Specific heat capacity, for transient heat transfer"},
    {"swelling", "Volumetric swelling strain rate"},
    {"userDefinedField", "Field variables defined by a user routine at each material point"},
    {"userMaterial", "Constitutive behavior supplied by a user routine, with its constants"},
    {"userOutputVariables", "Number of output variables a user routine defines"},
    {"viscoelastic", "Linear viscoelasticity in the time or frequency domain"},
    {"viscosity", "Viscosity of a fluid"},
    {"viscous", "Viscous network of a two-layer viscoplastic model"},
    {"description", "A free text describing it"},
    {"materialIdentifier",
     "A free identifier of the material for the user's records, e.g. its grade or supplier code"},
    {"softRockPlasticity", "Soft rock plasticity: yield surface and hardening of a weak rock"},
    {"superElasticity", "Superelasticity of a shape memory alloy"},
    {"meanFieldHomogenization",
     "Mean-field homogenization of a composite from the constituents it names"},
    {"gapConductance", "Heat conductance across a gap"},
    {"gapConvection", "Heat convection across a gap"},
    {"gapRadiation", "Heat radiation across a gap"},
    {"crushStress", "Crush stress of a crushable material, with its rate dependence"},
    {"plasticityCorrection",
     "Correction of the plastic flow for strain-rate and temperature effects"},
    {"laRC05DamageInitiation",
     "Onset of damage in a fibre composite by the LaRC05 criteria (four failure modes)"},
    {"hosfordCoulombDamageInitiation",
     "Onset of ductile damage by the Hosford-Coulomb fracture criterion"},
    {"electrolyte", "Electrolyte of a battery cell"},
    {"electrode", "Porous electrode of a battery cell"},
};
constexpr cls_MemberDescription kKmaDescMaterialTable[] = {
    {"allowEmptyFirstRow",
     "Whether the first row may be all zeros; any other blank or zero row fails (code 23)"},
};
constexpr int kKmaCodesMaterialTable[] = {23};
constexpr cls_MemberDescription kKmaDescMeanFieldHomogenization[] = {
    {"formulation", "Averaging scheme: MT (Mori-Tanaka), INVERSED_MT, BALANCED, VOIGT or REUSS"},
    {"isotropization",
     "Which part of the inclusions' tangent is isotropized: ALLISO (all), EISO (elastic) or PISO "
     "(plastic)"},
    {"uniformMatrixStrain", "Whether the strain of the matrix is taken as uniform"},
    {"angleIncrement", "Angle step of the orientation integration (degrees, above 0)"},
    {"constituents",
     "Names of the constituents in fieldConstituents: the matrix and the inclusions"},
};
constexpr int kKmaCodesMeanFieldHomogenization[] = {0, 62};
constexpr int kKmaCodesMembraneElastic[] = {0, 23};
constexpr cls_MemberDescription kKmaDescMohrCoulomb[] = {
    {"deviatoricEccentricity",
     "Flow potential eccentricity in the deviatoric plane (above 0.5, at most 1)"},
    {"meridionalEccentricity", "Flow potential eccentricity in the meridional plane (at least 0)"},
    {"useTensionCutoff", "Whether a tension cutoff limits the tensile stress"},
};
constexpr int kKmaCodesMohrCoulomb[] = {0, 8, 35, 23};
constexpr cls_MemberDescription kKmaDescMullinsEffect[] = {
    {"table",
     "CONSTANTS: r (above 1), m and beta (at least 0, not both 0) per row; USER: the properties "
     "constants; then temperature and field-variable columns"},
    {"definition",
     "How the softening is given: CONSTANTS (r, m, beta per row), USER (a user routine) or "
     "TEST_DATA (the test lists)"},
    {"properties",
     "Number of constants a USER definition passes to its routine (at least 0; the table is that "
     "wide)"},
    {"uniaxialTests", "Uniaxial unloading-reloading tests of a TEST_DATA definition"},
    {"biaxialTests", "Equibiaxial unloading-reloading tests of a TEST_DATA definition"},
    {"planarTests", "Planar unloading-reloading tests of a TEST_DATA definition"},
};
constexpr int kKmaCodesMullinsEffect[] = {0, 11, 46, 23, 43, 42, 41, 44, 25, 47, 45};
constexpr cls_MemberDescription kKmaDescGel[] = {
    {"table", "Gel particle radius, saturated radius, growth rate, volume fraction"},
};
constexpr int kKmaCodesGel[] = {23};
constexpr cls_MemberDescription kKmaDescLatentHeat[] = {
    {"table", "Latent heat, solidus temperature, liquidus temperature, one row per phase change"},
};
constexpr int kKmaCodesLatentHeat[] = {23};
constexpr cls_MemberDescription kKmaDescMoistureSwelling[] = {
    {"table", "Swelling strain, saturation"},
};
constexpr int kKmaCodesMoistureSwelling[] = {23};
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
     kKmaDescGel, nullptr, kKmaCodesGel},
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
     kKmaDescLatentHeat, nullptr, kKmaCodesLatentHeat},
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
     kKmaDescMoistureSwelling, nullptr, kKmaCodesMoistureSwelling},
    {"kmaC_MullinsEffect",
     "Mullins effect: the softening of a filled elastomer on reloading, given by the constants r, "
     "m and beta of the pseudo-elastic damage model (CONSTANTS), by a user subroutine with "
     "`properties` constants (USER) or by unloading-reloading test data in three lists "
     "(TEST_DATA).",
     kKmaDescMullinsEffect, nullptr, kKmaCodesMullinsEffect},
};
}  // namespace

std::span<const cls_ClassDescription> kmaC_Descriptions3Table() { return kKmaDescriptions3; }
