#pragma once
// A material: one fixed, named slot per kind of material behavior, each empty or holding one
// option, and two strings. The name is the key under which the repository holds the material.
// Slots are typed by their option class's row in the architecture table, so every slot is
// declared (and stored) whether or not its class is offered yet.
#include <string_view>

#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialSlots.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/cow_String.h"

KMAC_MATERIAL_SLOTS(KMAC_FORWARD_SLOT_CLASS)

class kmaC_Material : public fw_PersistentClass<kmaC_Material, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kmaC_Material";
  static constexpr const char* kScriptName = "Material";
  static constexpr int kVersion = 2503;
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 1); }
  static constexpr int kSlotCount = 84;

  // Persistent fields in write order, which is deliberate and differs from the index order: the
  // two strings (75, 76) stand between 74 and 77, and the gap options (37-39) after 79.
  static constexpr auto Fields() {
    using C = kmaC_Material;
    return std::tuple{
        fw_Field{"acousticMedium", 0, "acousticMedium", &C::acousticMedium},
        fw_Field{"brittleCracking", 1, "brittleCracking", &C::brittleCracking},
        fw_Field{"capPlasticity", 2, "capPlasticity", &C::capPlasticity},
        fw_Field{"castIronPlasticity", 3, "castIronPlasticity", &C::castIronPlasticity},
        fw_Field{"clayPlasticity", 4, "clayPlasticity", &C::clayPlasticity},
        fw_Field{"concrete", 5, "concrete", &C::concrete},
        fw_Field{"concreteDamagedPlasticity", 6, "concreteDamagedPlasticity", &C::concreteDamagedPlasticity},
        fw_Field{"conductivity", 7, "conductivity", &C::conductivity},
        fw_Field{"creep", 8, "creep", &C::creep},
        fw_Field{"foam", 9, "foam", &C::foam},
        fw_Field{"ductileDamageInitiation", 10, "ductileDamageInitiation", &C::ductileDamageInitiation},
        fw_Field{"fldDamageInitiation", 11, "fldDamageInitiation", &C::fldDamageInitiation},
        fw_Field{"flsdDamageInitiation", 12, "flsdDamageInitiation", &C::flsdDamageInitiation},
        fw_Field{"johnsonCookDamageInitiation", 13, "johnsonCookDamageInitiation", &C::johnsonCookDamageInitiation},
        fw_Field{"maxeDamageInitiation", 14, "maxeDamageInitiation", &C::maxeDamageInitiation},
        fw_Field{"maxsDamageInitiation", 15, "maxsDamageInitiation", &C::maxsDamageInitiation},
        fw_Field{"maxpeDamageInitiation", 16, "maxpeDamageInitiation", &C::maxpeDamageInitiation},
        fw_Field{"maxpsDamageInitiation", 17, "maxpsDamageInitiation", &C::maxpsDamageInitiation},
        fw_Field{"mkDamageInitiation", 18, "mkDamageInitiation", &C::mkDamageInitiation},
        fw_Field{"msfldDamageInitiation", 19, "msfldDamageInitiation", &C::msfldDamageInitiation},
        fw_Field{"quadeDamageInitiation", 20, "quadeDamageInitiation", &C::quadeDamageInitiation},
        fw_Field{"quadsDamageInitiation", 21, "quadsDamageInitiation", &C::quadsDamageInitiation},
        fw_Field{"shearDamageInitiation", 22, "shearDamageInitiation", &C::shearDamageInitiation},
        fw_Field{"hashinDamageInitiation", 23, "hashinDamageInitiation", &C::hashinDamageInitiation},
        fw_Field{"damping", 24, "damping", &C::damping},
        fw_Field{"deformationPlasticity", 25, "deformationPlasticity", &C::deformationPlasticity},
        fw_Field{"density", 26, "density", &C::density},
        fw_Field{"depvar", 27, "depvar", &C::depvar},
        fw_Field{"dielectric", 28, "dielectric", &C::dielectric},
        fw_Field{"diffusivity", 29, "diffusivity", &C::diffusivity},
        fw_Field{"druckerPrager", 30, "druckerPrager", &C::druckerPrager},
        fw_Field{"elastic", 31, "elastic", &C::elastic},
        fw_Field{"electricalConductivity", 32, "electricalConductivity", &C::electricalConductivity},
        fw_Field{"eos", 33, "eos", &C::eos},
        fw_Field{"expansion", 34, "expansion", &C::expansion},
        fw_Field{"fluidLeakoff", 35, "fluidLeakoff", &C::fluidLeakoff},
        fw_Field{"gapFlow", 36, "gapFlow", &C::gapFlow},
        fw_Field{"thicknessBehavior", 40, "thicknessBehavior", &C::thicknessBehavior},
        fw_Field{"transShearElastic", 41, "transShearElastic", &C::transShearElastic},
        fw_Field{"membraneElastic", 42, "membraneElastic", &C::membraneElastic},
        fw_Field{"gel", 43, "gel", &C::gel},
        fw_Field{"heatGeneration", 44, "heatGeneration", &C::heatGeneration},
        fw_Field{"hyperelastic", 45, "hyperelastic", &C::hyperelastic},
        fw_Field{"hyperfoam", 46, "hyperfoam", &C::hyperfoam},
        fw_Field{"hypoelastic", 47, "hypoelastic", &C::hypoelastic},
        fw_Field{"inelasticHeatFraction", 48, "inelasticHeatFraction", &C::inelasticHeatFraction},
        fw_Field{"jouleHeatFraction", 49, "jouleHeatFraction", &C::jouleHeatFraction},
        fw_Field{"latentHeat", 50, "latentHeat", &C::latentHeat},
        fw_Field{"lowDensityFoam", 51, "lowDensityFoam", &C::lowDensityFoam},
        fw_Field{"magneticPermeability", 52, "magneticPermeability", &C::magneticPermeability},
        fw_Field{"mohrCoulomb", 53, "mohrCoulomb", &C::mohrCoulomb},
        fw_Field{"moistureSwelling", 54, "moistureSwelling", &C::moistureSwelling},
        fw_Field{"mullinsEffect", 55, "mullinsEffect", &C::mullinsEffect},
        fw_Field{"permeability", 56, "permeability", &C::permeability},
        fw_Field{"piezoelectric", 57, "piezoelectric", &C::piezoelectric},
        fw_Field{"plastic", 58, "plastic", &C::plastic},
        fw_Field{"poreFluidExpansion", 59, "poreFluidExpansion", &C::poreFluidExpansion},
        fw_Field{"porousBulkModuli", 60, "porousBulkModuli", &C::porousBulkModuli},
        fw_Field{"porousElastic", 61, "porousElastic", &C::porousElastic},
        fw_Field{"porousMetalPlasticity", 62, "porousMetalPlasticity", &C::porousMetalPlasticity},
        fw_Field{"regularization", 63, "regularization", &C::regularization},
        fw_Field{"shear", 64, "shear", &C::shear},
        fw_Field{"solubility", 65, "solubility", &C::solubility},
        fw_Field{"sorption", 66, "sorption", &C::sorption},
        fw_Field{"specificHeat", 67, "specificHeat", &C::specificHeat},
        fw_Field{"swelling", 68, "swelling", &C::swelling},
        fw_Field{"userDefinedField", 69, "userDefinedField", &C::userDefinedField},
        fw_Field{"userMaterial", 70, "userMaterial", &C::userMaterial},
        fw_Field{"userOutputVariables", 71, "userOutputVariables", &C::userOutputVariables},
        fw_Field{"viscoelastic", 72, "viscoelastic", &C::viscoelastic},
        fw_Field{"viscosity", 73, "viscosity", &C::viscosity},
        fw_Field{"viscous", 74, "viscous", &C::viscous},
        fw_Field{"description", 75, "description", &C::description},
        fw_Field{"materialIdentifier", 76, "materialIdentifier", &C::materialIdentifier},
        fw_Field{"softRockPlasticity", 77, "softRockPlasticity", &C::softRockPlasticity},
        fw_Field{"superElasticity", 78, "superElasticity", &C::superElasticity},
        fw_Field{"meanFieldHomogenization", 79, "meanFieldHomogenization", &C::meanFieldHomogenization},
        fw_Field{"gapConductance", 37, "gapConductance", &C::gapConductance},
        fw_Field{"gapConvection", 38, "gapConvection", &C::gapConvection},
        fw_Field{"gapRadiation", 39, "gapRadiation", &C::gapRadiation},
        fw_Field{"crushStress", 80, "crushStress", &C::crushStress},
        fw_Field{"plasticityCorrection", 81, "plasticityCorrection", &C::plasticityCorrection},
        fw_Field{"laRC05DamageInitiation", 82, "laRC05DamageInitiation", &C::laRC05DamageInitiation},
        fw_Field{"hosfordCoulombDamageInitiation", 83, "hosfordCoulombDamageInitiation", &C::hosfordCoulombDamageInitiation},
        fw_Field{"electrolyte", 84, "electrolyte", &C::electrolyte},
        fw_Field{"electrode", 85, "electrode", &C::electrode},
    };
  }

  kmaC_Material() = default;
  kmaC_Material(const kmaC_Material&) = default;
  kmaC_Material& operator=(const kmaC_Material&) = default;
  explicit kmaC_Material(const cls_ReadVisitor& r);
  virtual ~kmaC_Material() = default;
  // Validates every option the material holds; the material has no rule of its own.
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  const cow_String& GetDescription() const { return description; }
  void SetDescription(const cow_String& v) { description = v; }
  const cow_String& GetMaterialIdentifier() const { return materialIdentifier; }
  void SetMaterialIdentifier(const cow_String& v) { materialIdentifier = v; }

  // Any slot by its scripting name. Unknown names are refused with "Unknown material option".
  static bool IsSlotName(std::string_view slot);
  // The slot shortcut's refusal of a step that names nothing of a material.
  [[noreturn]] static void RefuseUnknownStep(const kmaC_Material&, std::string_view) { RefuseSlot(); }
  [[noreturn]] static void RefuseSlot();
  const kmaC_MaterialOption* GetOption(std::string_view slot) const;
  // The option for modification (separated from copies first); null when the slot is empty.
  kmaC_MaterialOption* ModifyOption(std::string_view slot);
  // Refuses an option of another class than the slot's and leaves the slot as it was.
  void SetOption(std::string_view slot, const kmaC_MaterialOption& option);
  void ClearOption(std::string_view slot);

  // Typed access to every slot: HasDensity(), GetDensity() (throws when empty), ModifyDensity(),
  // SetDensity(const kmaC_Density&), ClearDensity() and so on for each row of
  // kma/kmaC_MaterialSlots.h.
  KMAC_MATERIAL_SLOTS(KMAC_DECLARE_SLOT_ACCESSORS)

  // Scripting names.
  static cow_String constructorCmd() { return kScriptName; }
  static cow_String materialRepositoryCmd() { return "materials"; }
  static cow_String setValuesCmd() { return "setValues"; }
  static cow_String nameCmd() { return "name"; }
  static cow_String acousticMediumCmd() { return "acousticMedium"; }
  static cow_String brittleCrackingCmd() { return "brittleCracking"; }
  static cow_String capPlasticityCmd() { return "capPlasticity"; }
  static cow_String castIronPlasticityCmd() { return "castIronPlasticity"; }
  static cow_String clayPlasticityCmd() { return "clayPlasticity"; }
  static cow_String concreteCmd() { return "concrete"; }
  static cow_String concreteDamagedPlasticityCmd() { return "concreteDamagedPlasticity"; }
  static cow_String conductivityCmd() { return "conductivity"; }
  static cow_String creepCmd() { return "creep"; }
  static cow_String foamCmd() { return "foam"; }
  static cow_String ductileDamageInitiationCmd() { return "ductileDamageInitiation"; }
  static cow_String fldDamageInitiationCmd() { return "fldDamageInitiation"; }
  static cow_String flsdDamageInitiationCmd() { return "flsdDamageInitiation"; }
  static cow_String johnsonCookDamageInitiationCmd() { return "johnsonCookDamageInitiation"; }
  static cow_String maxeDamageInitiationCmd() { return "maxeDamageInitiation"; }
  static cow_String maxsDamageInitiationCmd() { return "maxsDamageInitiation"; }
  static cow_String maxpeDamageInitiationCmd() { return "maxpeDamageInitiation"; }
  static cow_String maxpsDamageInitiationCmd() { return "maxpsDamageInitiation"; }
  static cow_String mkDamageInitiationCmd() { return "mkDamageInitiation"; }
  static cow_String msfldDamageInitiationCmd() { return "msfldDamageInitiation"; }
  static cow_String quadeDamageInitiationCmd() { return "quadeDamageInitiation"; }
  static cow_String quadsDamageInitiationCmd() { return "quadsDamageInitiation"; }
  static cow_String shearDamageInitiationCmd() { return "shearDamageInitiation"; }
  static cow_String hashinDamageInitiationCmd() { return "hashinDamageInitiation"; }
  static cow_String dampingCmd() { return "damping"; }
  static cow_String deformationPlasticityCmd() { return "deformationPlasticity"; }
  static cow_String densityCmd() { return "density"; }
  static cow_String depvarCmd() { return "depvar"; }
  static cow_String dielectricCmd() { return "dielectric"; }
  static cow_String diffusivityCmd() { return "diffusivity"; }
  static cow_String druckerPragerCmd() { return "druckerPrager"; }
  static cow_String elasticCmd() { return "elastic"; }
  static cow_String electricalConductivityCmd() { return "electricalConductivity"; }
  static cow_String eosCmd() { return "eos"; }
  static cow_String expansionCmd() { return "expansion"; }
  static cow_String fluidLeakoffCmd() { return "fluidLeakoff"; }
  static cow_String gapFlowCmd() { return "gapFlow"; }
  static cow_String thicknessBehaviorCmd() { return "thicknessBehavior"; }
  static cow_String transShearElasticCmd() { return "transShearElastic"; }
  static cow_String membraneElasticCmd() { return "membraneElastic"; }
  static cow_String gelCmd() { return "gel"; }
  static cow_String heatGenerationCmd() { return "heatGeneration"; }
  static cow_String hyperelasticCmd() { return "hyperelastic"; }
  static cow_String hyperfoamCmd() { return "hyperfoam"; }
  static cow_String hypoelasticCmd() { return "hypoelastic"; }
  static cow_String inelasticHeatFractionCmd() { return "inelasticHeatFraction"; }
  static cow_String jouleHeatFractionCmd() { return "jouleHeatFraction"; }
  static cow_String latentHeatCmd() { return "latentHeat"; }
  static cow_String lowDensityFoamCmd() { return "lowDensityFoam"; }
  static cow_String magneticPermeabilityCmd() { return "magneticPermeability"; }
  static cow_String mohrCoulombCmd() { return "mohrCoulomb"; }
  static cow_String moistureSwellingCmd() { return "moistureSwelling"; }
  static cow_String mullinsEffectCmd() { return "mullinsEffect"; }
  static cow_String permeabilityCmd() { return "permeability"; }
  static cow_String piezoelectricCmd() { return "piezoelectric"; }
  static cow_String plasticCmd() { return "plastic"; }
  static cow_String poreFluidExpansionCmd() { return "poreFluidExpansion"; }
  static cow_String porousBulkModuliCmd() { return "porousBulkModuli"; }
  static cow_String porousElasticCmd() { return "porousElastic"; }
  static cow_String porousMetalPlasticityCmd() { return "porousMetalPlasticity"; }
  static cow_String regularizationCmd() { return "regularization"; }
  static cow_String shearCmd() { return "shear"; }
  static cow_String solubilityCmd() { return "solubility"; }
  static cow_String sorptionCmd() { return "sorption"; }
  static cow_String specificHeatCmd() { return "specificHeat"; }
  static cow_String swellingCmd() { return "swelling"; }
  static cow_String userDefinedFieldCmd() { return "userDefinedField"; }
  static cow_String userMaterialCmd() { return "userMaterial"; }
  static cow_String userOutputVariablesCmd() { return "userOutputVariables"; }
  static cow_String viscoelasticCmd() { return "viscoelastic"; }
  static cow_String viscosityCmd() { return "viscosity"; }
  static cow_String viscousCmd() { return "viscous"; }
  static cow_String descriptionCmd() { return "description"; }
  static cow_String materialIdentifierCmd() { return "materialIdentifier"; }
  static cow_String softRockPlasticityCmd() { return "softRockPlasticity"; }
  static cow_String superElasticityCmd() { return "superElasticity"; }
  static cow_String meanFieldHomogenizationCmd() { return "meanFieldHomogenization"; }
  static cow_String gapConductanceCmd() { return "gapConductance"; }
  static cow_String gapConvectionCmd() { return "gapConvection"; }
  static cow_String gapRadiationCmd() { return "gapRadiation"; }
  static cow_String crushStressCmd() { return "crushStress"; }
  static cow_String plasticityCorrectionCmd() { return "plasticityCorrection"; }
  static cow_String laRC05DamageInitiationCmd() { return "laRC05DamageInitiation"; }
  static cow_String hosfordCoulombDamageInitiationCmd() { return "hosfordCoulombDamageInitiation"; }
  static cow_String electrolyteCmd() { return "electrolyte"; }
  static cow_String electrodeCmd() { return "electrode"; }

 private:
  template <class Fn>
  bool VisitSlot(std::string_view slot, Fn&& fn);
  template <class Fn>
  bool VisitSlot(std::string_view slot, Fn&& fn) const;

  kmaC_OptionSlot<kmaC_OptionClass::AcousticMedium> acousticMedium;
  kmaC_OptionSlot<kmaC_OptionClass::BrittleCracking> brittleCracking;
  kmaC_OptionSlot<kmaC_OptionClass::CapPlasticity> capPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::CastIronPlasticity> castIronPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::ClayPlasticity> clayPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::Concrete> concrete;
  kmaC_OptionSlot<kmaC_OptionClass::ConcreteDamagedPlasticity> concreteDamagedPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::Conductivity> conductivity;
  kmaC_OptionSlot<kmaC_OptionClass::Creep> creep;
  kmaC_OptionSlot<kmaC_OptionClass::Foam> foam;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> ductileDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> fldDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> flsdDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> johnsonCookDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> maxeDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> maxsDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> maxpeDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> maxpsDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> mkDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> msfldDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> quadeDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> quadsDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> shearDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> hashinDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::Damping> damping;
  kmaC_OptionSlot<kmaC_OptionClass::DeformationPlasticity> deformationPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::Density> density;
  kmaC_OptionSlot<kmaC_OptionClass::Depvar> depvar;
  kmaC_OptionSlot<kmaC_OptionClass::Dielectric> dielectric;
  kmaC_OptionSlot<kmaC_OptionClass::Diffusivity> diffusivity;
  kmaC_OptionSlot<kmaC_OptionClass::DruckerPrager> druckerPrager;
  kmaC_OptionSlot<kmaC_OptionClass::Elastic> elastic;
  kmaC_OptionSlot<kmaC_OptionClass::ElectricalConductivity> electricalConductivity;
  kmaC_OptionSlot<kmaC_OptionClass::Eos> eos;
  kmaC_OptionSlot<kmaC_OptionClass::Expansion> expansion;
  kmaC_OptionSlot<kmaC_OptionClass::FluidLeakoff> fluidLeakoff;
  kmaC_OptionSlot<kmaC_OptionClass::GapFlow> gapFlow;
  kmaC_OptionSlot<kmaC_OptionClass::ThicknessBehavior> thicknessBehavior;
  kmaC_OptionSlot<kmaC_OptionClass::TransShearElastic> transShearElastic;
  kmaC_OptionSlot<kmaC_OptionClass::MembraneElastic> membraneElastic;
  kmaC_OptionSlot<kmaC_OptionClass::Gel> gel;
  kmaC_OptionSlot<kmaC_OptionClass::HeatGeneration> heatGeneration;
  kmaC_OptionSlot<kmaC_OptionClass::Hyperelastic> hyperelastic;
  kmaC_OptionSlot<kmaC_OptionClass::Hyperfoam> hyperfoam;
  kmaC_OptionSlot<kmaC_OptionClass::Hypoelastic> hypoelastic;
  kmaC_OptionSlot<kmaC_OptionClass::InelasticHeatFraction> inelasticHeatFraction;
  kmaC_OptionSlot<kmaC_OptionClass::JouleHeatFraction> jouleHeatFraction;
  kmaC_OptionSlot<kmaC_OptionClass::LatentHeat> latentHeat;
  kmaC_OptionSlot<kmaC_OptionClass::LowDensityFoam> lowDensityFoam;
  kmaC_OptionSlot<kmaC_OptionClass::MagneticPermeability> magneticPermeability;
  kmaC_OptionSlot<kmaC_OptionClass::MohrCoulomb> mohrCoulomb;
  kmaC_OptionSlot<kmaC_OptionClass::MoistureSwelling> moistureSwelling;
  kmaC_OptionSlot<kmaC_OptionClass::MullinsEffect> mullinsEffect;
  kmaC_OptionSlot<kmaC_OptionClass::Permeability> permeability;
  kmaC_OptionSlot<kmaC_OptionClass::Piezoelectric> piezoelectric;
  kmaC_OptionSlot<kmaC_OptionClass::Plastic> plastic;
  kmaC_OptionSlot<kmaC_OptionClass::PoreFluidExpansion> poreFluidExpansion;
  kmaC_OptionSlot<kmaC_OptionClass::PorousBulkModuli> porousBulkModuli;
  kmaC_OptionSlot<kmaC_OptionClass::PorousElastic> porousElastic;
  kmaC_OptionSlot<kmaC_OptionClass::PorousMetalPlasticity> porousMetalPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::Regularization> regularization;
  kmaC_OptionSlot<kmaC_OptionClass::Shear> shear;
  kmaC_OptionSlot<kmaC_OptionClass::Solubility> solubility;
  kmaC_OptionSlot<kmaC_OptionClass::Sorption> sorption;
  kmaC_OptionSlot<kmaC_OptionClass::SpecificHeat> specificHeat;
  kmaC_OptionSlot<kmaC_OptionClass::Swelling> swelling;
  kmaC_OptionSlot<kmaC_OptionClass::UserDefinedField> userDefinedField;
  kmaC_OptionSlot<kmaC_OptionClass::UserMaterial> userMaterial;
  kmaC_OptionSlot<kmaC_OptionClass::UserOutputVariables> userOutputVariables;
  kmaC_OptionSlot<kmaC_OptionClass::Viscoelastic> viscoelastic;
  kmaC_OptionSlot<kmaC_OptionClass::Viscosity> viscosity;
  kmaC_OptionSlot<kmaC_OptionClass::Viscous> viscous;
  cow_String description;
  cow_String materialIdentifier;
  kmaC_OptionSlot<kmaC_OptionClass::SoftRockPlasticity> softRockPlasticity;
  kmaC_OptionSlot<kmaC_OptionClass::SuperElasticity> superElasticity;
  kmaC_OptionSlot<kmaC_OptionClass::MeanFieldHomogenization> meanFieldHomogenization;
  kmaC_OptionSlot<kmaC_OptionClass::GapConductance> gapConductance;
  kmaC_OptionSlot<kmaC_OptionClass::GapConvection> gapConvection;
  kmaC_OptionSlot<kmaC_OptionClass::GapRadiation> gapRadiation;
  kmaC_OptionSlot<kmaC_OptionClass::CrushStress> crushStress;
  kmaC_OptionSlot<kmaC_OptionClass::PlasticityCorrection> plasticityCorrection;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> laRC05DamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::DamageInitiation> hosfordCoulombDamageInitiation;
  kmaC_OptionSlot<kmaC_OptionClass::Electrolyte> electrolyte;
  kmaC_OptionSlot<kmaC_OptionClass::Electrode> electrode;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kmaC_Material, mem_Allocated>;
