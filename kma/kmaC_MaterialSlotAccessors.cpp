// The material's typed slot accessors, one set per row of the slot list. Each row is checked
// against the slot it names: the option class must be the one the slot's architecture row holds,
// so the cast from the slot's option to the row's class is exact.
#include "kma/kmaC_Material.h"
#include "kma/kmaC_MaterialSlots.h"
#include "kma/kmaC_AcousticMedium.h"
#include "kma/kmaC_BrittleCracking.h"
#include "kma/kmaC_CapPlasticity.h"
#include "kma/kmaC_CastIronPlasticity.h"
#include "kma/kmaC_ClayPlasticity.h"
#include "kma/kmaC_Concrete.h"
#include "kma/kmaC_ConcreteDamagedPlasticity.h"
#include "kma/kmaC_Conductivity.h"
#include "kma/kmaC_Creep.h"
#include "kma/kmaC_CrushStress.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_Damping.h"
#include "kma/kmaC_DeformationPlasticity.h"
#include "kma/kmaC_Density.h"
#include "kma/kmaC_Depvar.h"
#include "kma/kmaC_Dielectric.h"
#include "kma/kmaC_Diffusivity.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_ElectricalConductivity.h"
#include "kma/kmaC_Electrode.h"
#include "kma/kmaC_Electrolyte.h"
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_Expansion.h"
#include "kma/kmaC_FluidLeakoff.h"
#include "kma/kmaC_Foam.h"
#include "kma/kmaC_GapConductance.h"
#include "kma/kmaC_GapConvection.h"
#include "kma/kmaC_GapFlow.h"
#include "kma/kmaC_GapRadiation.h"
#include "kma/kmaC_Gel.h"
#include "kma/kmaC_HeatGeneration.h"
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_Hyperfoam.h"
#include "kma/kmaC_Hypoelastic.h"
#include "kma/kmaC_InelasticHeatFraction.h"
#include "kma/kmaC_JouleHeatFraction.h"
#include "kma/kmaC_LatentHeat.h"
#include "kma/kmaC_LowDensityFoam.h"
#include "kma/kmaC_MagneticPermeability.h"
#include "kma/kmaC_MeanFieldHomogenization.h"
#include "kma/kmaC_MembraneElastic.h"
#include "kma/kmaC_MohrCoulomb.h"
#include "kma/kmaC_MoistureSwelling.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_Permeability.h"
#include "kma/kmaC_Piezoelectric.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_PlasticityCorrection.h"
#include "kma/kmaC_PoreFluidExpansion.h"
#include "kma/kmaC_PorousBulkModuli.h"
#include "kma/kmaC_PorousElastic.h"
#include "kma/kmaC_PorousMetalPlasticity.h"
#include "kma/kmaC_Regularization.h"
#include "kma/kmaC_Shear.h"
#include "kma/kmaC_SoftRockPlasticity.h"
#include "kma/kmaC_Solubility.h"
#include "kma/kmaC_Sorption.h"
#include "kma/kmaC_SpecificHeat.h"
#include "kma/kmaC_SuperElasticity.h"
#include "kma/kmaC_Swelling.h"
#include "kma/kmaC_ThicknessBehavior.h"
#include "kma/kmaC_TransShearElastic.h"
#include "kma/kmaC_UserDefinedField.h"
#include "kma/kmaC_UserMaterial.h"
#include "kma/kmaC_UserOutputVariables.h"
#include "kma/kmaC_Viscoelastic.h"
#include "kma/kmaC_Viscosity.h"
#include "kma/kmaC_Viscous.h"
#include "platform/base/nex_Exception.h"

#define KMAC_DEFINE_SLOT_ACCESSORS(Stem, member, Class)                                            \
  const Class& kmaC_Material::Get##Stem() const {                                                   \
    static_assert(Class::TypeId() == decltype(member)::TypeId(), "slot row names another class"); \
    if (member.IsNull()) nex_ThrowCmd("The material has no " #member " option");                  \
    return static_cast<const Class&>(*member.ConstGet());                                         \
  }                                                                                               \
  Class& kmaC_Material::Modify##Stem() {                                                           \
    if (member.IsNull()) nex_ThrowCmd("The material has no " #member " option");                  \
    return static_cast<Class&>(*member.Get());                                                    \
  }                                                                                               \
  void kmaC_Material::Set##Stem(const Class& v) { member.Set(v, #member); }

KMAC_MATERIAL_SLOTS(KMAC_DEFINE_SLOT_ACCESSORS)

#undef KMAC_DEFINE_SLOT_ACCESSORS

// Every slot has its row: the list and the material's slot count agree.
#define KMAC_COUNT_SLOT_ROW(Stem, member, Class) +1
static_assert(0 KMAC_MATERIAL_SLOTS(KMAC_COUNT_SLOT_ROW) == kmaC_Material::kSlotCount,
              "the slot list misses a slot of the material");
#undef KMAC_COUNT_SLOT_ROW
