#include "kbp/QMXOdbKbpC.h"

#include <iterator>

#include "kbp/kbpC_ArbitraryProfile.h"
#include "kbp/kbpC_BPCWrapper.h"
#include "kbp/kbpC_BeamProfile.h"
#include "kbp/kbpC_BeamProfileContainer.h"
#include "kbp/kbpC_BoxProfile.h"
#include "kbp/kbpC_CbeamProfile.h"
#include "kbp/kbpC_CircularProfile.h"
#include "kbp/kbpC_Descriptions.h"
#include "kbp/kbpC_GeneralizedProfile.h"
#include "kbp/kbpC_HatProfile.h"
#include "kbp/kbpC_HexagonalProfile.h"
#include "kbp/kbpC_IbeamProfile.h"
#include "kbp/kbpC_LbeamProfile.h"
#include "kbp/kbpC_PipeProfile.h"
#include "kbp/kbpC_ProfileLabels.h"
#include "kbp/kbpC_RectangularProfile.h"
#include "kbp/kbpC_TbeamProfile.h"
#include "kbp/kbpC_TrapezoidalProfile.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/model/ddr_Model.h"
#include "platform/base/omi_Singleton.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 612;

// Row i names the class whose type id is (612 << 16) | i.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kbpC_BeamProfile"},
    {7, 1, 0, "kbpC_RectangularProfile"},
    {7, 1, 0, "kbpC_BoxProfile"},
    {7, 1, 0, "kbpC_CircularProfile"},
    {7, 1, 0, "kbpC_PipeProfile"},
    {7, 1, 0, "kbpC_HexagonalProfile"},
    {7, 1, 0, "kbpC_TrapezoidalProfile"},
    {7, 1, 0, "kbpC_IbeamProfile"},
    {7, 1, 0, "kbpC_LbeamProfile"},
    {7, 1, 0, "kbpC_TbeamProfile"},
    {7, 1, 0, "kbpC_CbeamProfile"},
    {7, 1, 0, "kbpC_HatProfile"},
    {7, 1, 0, "kbpC_ArbitraryProfile"},
    {7, 1, 0, "kbpC_GeneralizedProfile"},
    {7, 1, 10, "kbpC_BeamProfileContainer"},
    {7, 1, 0, "kbpC_BeamProfileIMPSC"},
    {7, 1, 0, "kbpC_BeamProfileShortcut"},
    {7, 16, 612, "kbpC_BeamProfileInBeamProfileContainerShortcut"},
    {7, 1, 0, "kbpC_BeamProfileContainerIMPLSC"},
    {7, 1, 0, "kbpC_BeamProfileContainerShortcut"},
    {7, 19, 612, "kbpC_BeamProfileContainerInModelShortcut"},
    {7, 13, 10, "kbpC_BPCWrapper"},
};
static_assert(std::size(kArchRows) == 23);
}  // namespace

typ_ArchCompEntry kbpC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kbpC_formalize() {}

int QMXOdbKbpC_count() { return count; }

void QMXOdbKbpC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kbpC_RegisterDescriptions();
  bas_StartJournal::Start("QMXOdbKbpC");
  typ_ArchCompTable::InsertEntry(kArchKey, kbpC_ArchEntry());
  {
    kbpC_BeamProfileContainer profiles;
    kbpC_BPCWrapper prototype(profiles);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kbpC_BPCWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kbpC_BeamProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_RectangularProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_BoxProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_CircularProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_PipeProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_HexagonalProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_TrapezoidalProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_IbeamProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_LbeamProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_TbeamProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_CbeamProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_HatProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_ArbitraryProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_GeneralizedProfile::InitializeMetadata, 7);
  metadata.initClassMetadata(&kbpC_BeamProfileContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kbpC_BPCWrapper::InitializeMetadata, 4);
}

void QMXOdbKbpC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kbpC_UnregisterDescriptions();
  bas_StartJournal::Stop("QMXOdbKbpC");
  ddr_Model::UnRegisterExtension(kbpC_BeamProfileContainer::Names::kRepositoryName);
  kbpC_ReleaseDisplayLabels();
}
