#include "kef/QMXOdbKefC.h"

#include <iterator>
#include "kef/kefC_Advice.h"

#include "kef/kefC_AssembledFastener.h"
#include "kef/kefC_ContourIntegral.h"
#include "kef/kefC_Crack.h"
#include "kef/kefC_CrackContainer.h"
#include "kef/kefC_DataImperfection.h"
#include "kef/kefC_DebondVCCT.h"
#include "kef/kefC_Descriptions.h"
#include "kef/kefC_DiscreteFastener.h"
#include "kef/kefC_EngineeringFeatures.h"
#include "kef/kefC_Fastener.h"
#include "kef/kefC_FastenerContainer.h"
#include "kef/kefC_FileImperfection.h"
#include "kef/kefC_HeatCapacitance.h"
#include "kef/kefC_Imperfection.h"
#include "kef/kefC_ImperfectionContainer.h"
#include "kef/kefC_Inertia.h"
#include "kef/kefC_InertiaContainer.h"
#include "kef/kefC_InputImperfection.h"
#include "kef/kefC_NonstructuralMass.h"
#include "kef/kefC_PointFastener.h"
#include "kef/kefC_PointMassInertia.h"
#include "kef/kefC_Spring.h"
#include "kef/kefC_SpringContainer.h"
#include "kef/kefC_SpringToGround.h"
#include "kef/kefC_TwoPointSpring.h"
#include "kef/kefC_TypeLabelMap.h"
#include "kef/kefC_XFEMCrack.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 844;

// Row i names the class whose type id is (844 << 16) | i. The engineering features object is its
// own model extension, so no wrapper has a row.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 13, 10, "kefC_EngineeringFeatures"},
    {7, 1, 10, "kefC_InertiaContainer"},
    {7, 1, 10, "kefC_FastenerContainer"},
    {7, 1, 10, "kefC_CrackContainer"},
    {7, 1, 10, "kefC_SpringContainer"},
    {7, 1, 10, "kefC_ImperfectionContainer"},
    {7, 1, 0, "kefC_Fastener"},
    {7, 1, 0, "kefC_PointFastener"},
    {7, 1, 0, "kefC_DiscreteFastener"},
    {7, 1, 0, "kefC_AssembledFastener"},
    {7, 1, 0, "kefC_Crack"},
    {7, 1, 0, "kefC_ContourIntegral"},
    {7, 1, 0, "kefC_XFEMCrack"},
    {7, 1, 0, "kefC_DebondVCCT"},
    {7, 1, 0, "kefC_Inertia"},
    {7, 1, 0, "kefC_PointMassInertia"},
    {7, 1, 0, "kefC_NonstructuralMass"},
    {7, 1, 0, "kefC_HeatCapacitance"},
    {7, 1, 0, "kefC_Spring"},
    {7, 1, 0, "kefC_SpringToGround"},
    {7, 1, 0, "kefC_TwoPointSpring"},
    {7, 1, 0, "kefC_Imperfection"},
    {7, 1, 0, "kefC_FileImperfection"},
    {7, 1, 0, "kefC_InputImperfection"},
    {7, 1, 0, "kefC_DataImperfection"},
};
static_assert(std::size(kArchRows) == 26);
}  // namespace

typ_ArchCompEntry kefC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kefC_formalize() {}

int QMXOdbKefC_count() { return count; }

void QMXOdbKefC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kefC_RegisterDescriptions();
  kefC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKefC");
  typ_ArchCompTable::InsertEntry(kArchKey, kefC_ArchEntry());
  ddr_Model::RegisterExtension(kefC_EngineeringFeatures());
  bas_StartJournal::Register("kefC_EngineeringFeatures");
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kefC_Inertia::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_PointMassInertia::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_NonstructuralMass::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_HeatCapacitance::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_Fastener::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_PointFastener::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_DiscreteFastener::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_AssembledFastener::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_Crack::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_ContourIntegral::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_XFEMCrack::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_DebondVCCT::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_Spring::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_SpringToGround::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_TwoPointSpring::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_Imperfection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_FileImperfection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_InputImperfection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_DataImperfection::InitializeMetadata, 7);
  metadata.initClassMetadata(&kefC_InertiaContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kefC_FastenerContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kefC_CrackContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kefC_SpringContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kefC_ImperfectionContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kefC_EngineeringFeatures::InitializeMetadata, 4);
}

void QMXOdbKefC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kefC_UnregisterDescriptions();
  kefC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKefC");
  ddr_Model::UnRegisterExtension(kefC_EngineeringFeatures::kExtensionName);
  kefC_TypeLabelMap::Release();
}
