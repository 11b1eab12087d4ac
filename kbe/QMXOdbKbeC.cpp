#include "kbe/QMXOdbKbeC.h"

#include <iterator>

#include "kbe/kbeC_BehaviorOptionContainer.h"
#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_CSWrapper.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_ConnectorSection.h"
#include "kbe/kbeC_ConnectorSectionContainer.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "kbe/kbeC_ContactForce.h"
#include "kbe/kbeC_DerivedComponent.h"
#include "kbe/kbeC_Descriptions.h"
#include "kbe/kbeC_Legacy.h"
#include "kbe/kbeC_TangentialBehavior.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 680;

// Row i names the class whose type id is (680 << 16) | i. Rows 59 to 70 are the classes of
// version 453 and 507 files, kept so that their class ids can be told apart while they are
// renamed to today's classes.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kbeC_ConnectorBehaviorOption"},
    {7, 1, 0, "kbeC_ConnectorOptions"},
    {7, 1, 0, "kbeC_DerivedComponent"},
    {7, 1, 0, "kbeC_ContactForce"},
    {7, 13, 10, "kbeC_CSWrapper"},
    {7, 1, 0, "kbeC_ConnectorElasticity"},
    {7, 1, 0, "kbeC_ConnectorDamping"},
    {7, 1, 0, "kbeC_ConnectorPlasticity"},
    {7, 1, 0, "kbeC_ConnectorFriction"},
    {7, 1, 0, "kbeC_ConnectorDamage"},
    {7, 1, 0, "kbeC_ConnectorFailure"},
    {7, 1, 0, "kbeC_ConnectorLock"},
    {7, 1, 0, "kbeC_TangentialBehavior"},
    {7, 1, 0, "kbeC_ConnectorStop"},
    {7, 1, 10, "kbeC_ConnectorBehaviorOptionList"},
    {7, 1, 10, "kbeC_BehaviorOptionContainer"},
    {7, 1, 0, "kbeC_ConnectorBehaviorOptionIMPLSC"},
    {7, 1, 0, "kbeC_ConnectorBehaviorOptionShortcut"},
    {7, 1, 0, "kbeC_ConnectorBehaviorOptionListIMPLSC"},
    {7, 1, 0, "kbeC_ConnectorBehaviorOptionListShortcut"},
    {7, 19, 680, "kbeC_ConnectorBehaviorOptionInConnectorBehaviorOptionListShortcut"},
    {7, 19, 680, "kbeC_ConnectorBehaviorOptionInConnectorBehaviorListShortcut"},
    {7, 1, 0, "kbeC_BehaviorOptionShortcut"},
    {7, 1, 0, "kbeC_BehaviorOptionContainerIMPLSC"},
    {7, 1, 0, "kbeC_BehaviorOptionContainerShortcut"},
    {7, 24, 680, "kbeC_BehaviorOptionInBehaviorOptionContainerShortcut"},
    {7, 1, 0, "kbeC_ConnectorOptionsIMPLSC"},
    {7, 1, 0, "kbeC_ConnectorOptionsShortcut"},
    {7, 17, 680, "kbeC_ConnectorOptionsInConnectorBehaviorOptionShortcut"},
    {7, 17, 680, "kbeC_InitiationOptionsInConnectorBehaviorOptionShortcut"},
    {7, 1, 0, "kbeC_ConnectorPotential"},
    {7, 17, 680, "kbeC_EvolutionOptionsInConnectorBehaviorOptionShortcut"},
    {7, 17, 680, "kbeC_IsotropicOptionsInConnectorBehaviorOptionShortcut"},
    {7, 17, 680, "kbeC_KinematicOptionsInConnectorBehaviorOptionShortcut"},
    {7, 50, 680, "kbeC_ConnectorOptionsInCDCTermShortcut"},
    {7, 1, 0, "kbeC_ConnectorPotentialIMPLSC"},
    {7, 1, 0, "kbeC_ConnectorPotentialShortcut"},
    {7, 1, 0, "kbeC_ConnectorPotentialListIMPLSC"},
    {7, 1, 0, "kbeC_ConnectorPotentialListShortcut"},
    {7, 38, 680, "kbeC_ConnectorPotentialInConnectorPotentialListShortcut"},
    {7, 17, 680, "kbeC_InitiationPotentialsListInConnectorBehaviorOptionShortcut"},
    {7, 17, 680, "kbeC_EvolutionPotentialsListInConnectorBehaviorOptionShortcut"},
    {7, 17, 680, "kbeC_ConnectPotentialsListInConnectorBehaviorOptionShortcut"},
    {7, 17, 680, "kbeC_ConnectPotentialsListInConnectorFrictionShortcut"},
    {7, 1, 0, "kbeC_CDCTerm"},
    {7, 1, 0, "kbeC_DerivedComponentIMPLSC"},
    {7, 1, 0, "kbeC_DerivedComponentShortcut"},
    {7, 36, 680, "kbeC_DerivedComponentInConnectorPotentialShortcut"},
    {7, 17, 680, "kbeC_DerivedComponentInConnectorBehaviorOptionShortcut"},
    {7, 1, 0, "kbeC_CDCTermIMPLSC"},
    {7, 1, 0, "kbeC_CDCTermShortcut"},
    {7, 1, 0, "kbeC_CDCTermListIMPLSC"},
    {7, 1, 0, "kbeC_CDCTermListShortcut"},
    {7, 52, 680, "kbeC_CDCTermInCDCTermListShortcut"},
    {7, 46, 680, "kbeC_CdcTermsListInDerivedComponentShortcut"},
    {7, 1, 0, "kbeC_TangentialBehaviorIMPLSC"},
    {7, 1, 0, "kbeC_TangentialBehaviorShortcut"},
    {7, 17, 680, "kbeC_TangentialBehaviorInConnectorBehaviorOptionShortcut"},
    {7, 1, 0, "kbeC_Damage"},
    {7, 1, 0, "kbeC_Damping"},
    {7, 1, 0, "kbeC_Elasticity"},
    {7, 1, 0, "kbeC_Failure"},
    {7, 1, 0, "kbeC_Friction"},
    {7, 1, 0, "kbeC_Lock"},
    {7, 1, 0, "kbeC_Plasticity"},
    {7, 1, 0, "kbeC_Potential"},
    {7, 1, 0, "kbeC_Stops"},
    {7, 1, 0, "kbeC_MotionDiscontinuity"},
    {7, 1, 0, "kbeC_Tabular"},
    {7, 1, 0, "kbeC_PotentialContainer"},
    {7, 1, 0, "kbeC_ConnectorSection"},
    {7, 1, 10, "kbeC_ConnectorSectionContainer"},
};
static_assert(std::size(kArchRows) == 73);
}  // namespace

typ_ArchCompEntry kbeC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kbeC_formalize() {}

int QMXOdbKbeC_count() { return count; }

void QMXOdbKbeC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kbeC_RegisterDescriptions();
  bas_StartJournal::Start("QMXOdbKbeC");
  typ_ArchCompTable::InsertEntry(kArchKey, kbeC_ArchEntry());
  {
    kbeC_ConnectorSectionContainer sections;
    kbeC_CSWrapper prototype(sections);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kbeC_CSWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kbeC_ConnectorBehaviorOption::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorOptions::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_DerivedComponent::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_CDCTerm::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorPotential::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ContactForce::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_TangentialBehavior::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorElasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorDamping::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorPlasticity::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorFriction::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorDamage::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorFailure::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorLock::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorStop::InitializeMetadata, 7);
  // A keyed map registers in the group of maps.
  metadata.initClassMetadata(&kbeC_BehaviorOptionContainer::InitializeMetadata, 3);
  // What this library adds beyond the sixteen: the section, its repository and the repository's
  // wrapper.
  metadata.initClassMetadata(&kbeC_ConnectorSection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbeC_ConnectorSectionContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kbeC_CSWrapper::InitializeMetadata, 4);
  kbeC_RegisterLegacyVersions(omi_Singleton<dbc_OldClassRegistrar>::Instance());
}

void QMXOdbKbeC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kbeC_UnregisterDescriptions();
  bas_StartJournal::Stop("QMXOdbKbeC");
  ddr_Model::UnRegisterExtension(kbeC_ConnectorSectionContainer::Names::kRepositoryName);
}
