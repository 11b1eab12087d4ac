#include "kam/QMXOdbKamC.h"

#include <iterator>
#include "kam/kamC_Advice.h"

#include "kam/kamC_ActuatorAmplitude.h"
#include "kam/kamC_Amplitude.h"
#include "kam/kamC_AmplitudeContainer.h"
#include "kam/kamC_AmplitudeContainerWrapper.h"
#include "kam/kamC_Amplitude_208.h"
#include "kam/kamC_BaselineCorrection.h"
#include "kam/kamC_CorrelationComponent.h"
#include "kam/kamC_Decay.h"
#include "kam/kamC_Descriptions.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_EquallySpaced_203.h"
#include "kam/kamC_Modulated.h"
#include "kam/kamC_Periodic.h"
#include "kam/kamC_Periodic_203.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_SmoothStep_203.h"
#include "kam/kamC_SolutionDependent.h"
#include "kam/kamC_Spectrum.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_Tabular.h"
#include "kam/kamC_Tabular_203.h"
#include "kam/kamC_TypeLabelMap.h"
#include "kam/kamC_UserAmplitude.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 580;

// Row i names the class whose type id is (580 << 16) | i.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kamC_Amplitude"},
    {7, 1, 0, "kamC_Tabular"},
    {7, 1, 0, "kamC_EquallySpaced"},
    {7, 1, 0, "kamC_Periodic"},
    {7, 1, 0, "kamC_Modulated"},
    {7, 1, 0, "kamC_Decay"},
    {7, 1, 0, "kamC_SmoothStep"},
    {7, 1, 0, "kamC_SolutionDependent"},
    {7, 1, 0, "kamC_ActuatorAmplitude"},
    {7, 1, 0, "kamC_UserAmplitude"},
    {7, 1, 0, "kamC_SpectrumAmplitude"},
    {7, 1, 0, "kamC_Spectrum"},
    {7, 1, 0, "kamC_PsdDefinition"},
    {7, 1, 0, "kamC_CorrelationComponent"},
    {7, 1, 0, "kamC_BaselineCorrection"},
    {7, 1, 10, "kamC_AmplitudeContainer"},
    {7, 1, 0, "kamC_AmplitudeIMPLSC"},
    {7, 1, 0, "kamC_AmplitudeShortcut"},
    {7, 17, 580, "kamC_AmplitudeInAmplitudeContainerShortcut"},
    {7, 1, 0, "kamC_AmplitudeContainerIMPLSC"},
    {7, 1, 0, "kamC_AmplitudeContainerShortcut"},
    {7, 20, 580, "kamC_AmplitudeContainerInModelShortcut"},
    {7, 1, 0, "kamC_BaselineCorrectionIMPLSC"},
    {7, 1, 0, "kamC_BaselineCorrectionShortcut"},
    {7, 23, 580, "kamC_BaselineCorrectionInAmplitudeShortcut"},
    {7, 23, 580, "kamC_BaselineCorrectionInTabularShortcut"},
    {7, 23, 580, "kamC_BaselineCorrectionInEquallySpacedShortcut"},
    {7, 13, 10, "kamC_AmplitudeContainerWrapper"},
};
static_assert(std::size(kArchRows) == 29);
}  // namespace

typ_ArchCompEntry kamC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kamC_formalize() {}

int QMXOdbKamC_count() { return count; }

void QMXOdbKamC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kamC_RegisterDescriptions();
  kamC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKamC");
  typ_ArchCompTable::InsertEntry(kArchKey, kamC_ArchEntry());
  {
    kamC_AmplitudeContainer amplitudes;
    kamC_AmplitudeContainerWrapper prototype(amplitudes);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kamC_AmplitudeContainerWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kamC_Amplitude::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_Tabular::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_EquallySpaced::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_Periodic::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_Modulated::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_Decay::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_SmoothStep::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_SolutionDependent::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_ActuatorAmplitude::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_UserAmplitude::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_SpectrumAmplitude::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_Spectrum::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_PsdDefinition::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_CorrelationComponent::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_BaselineCorrection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kamC_AmplitudeContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kamC_AmplitudeContainerWrapper::InitializeMetadata, 4);
  auto& old = omi_Singleton<dbc_OldClassRegistrar>::Instance();
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kamC_Amplitude_208), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kamC_Tabular_203), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kamC_EquallySpaced_203), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kamC_Periodic_203), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kamC_SmoothStep_203), 5);
}

void QMXOdbKamC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kamC_UnregisterDescriptions();
  kamC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKamC");
  ddr_Model::UnRegisterExtension(kamC_AmplitudeContainer::Names::kRepositoryName);
  kamC_TypeLabelMap::Release();
}
