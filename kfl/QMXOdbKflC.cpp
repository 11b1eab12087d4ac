#include "kfl/QMXOdbKflC.h"

#include <iterator>

#include "kfl/kflC_ButterworthFilter.h"
#include "kfl/kflC_Chebyshev1Filter.h"
#include "kfl/kflC_Chebyshev2Filter.h"
#include "kfl/kflC_Descriptions.h"
#include "kfl/kflC_FCWrapper.h"
#include "kfl/kflC_Filter.h"
#include "kfl/kflC_FilterContainer.h"
#include "kfl/kflC_OperatorFilter.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 849;

// Row i names the class whose type id is (849 << 16) | i.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kflC_Filter"},
    {7, 1, 0, "kflC_ButterworthFilter"},
    {7, 1, 0, "kflC_Chebyshev1Filter"},
    {7, 1, 0, "kflC_Chebyshev2Filter"},
    {7, 1, 0, "kflC_OperatorFilter"},
    {7, 1, 10, "kflC_FilterContainer"},
    {7, 1, 0, "kflC_FilterIMPLSC"},
    {7, 1, 0, "kflC_FilterShortcut"},
    {7, 7, 849, "kflC_FilterInFilterContainerShortcut"},
    {7, 1, 0, "kflC_FilterContainerIMPLSC"},
    {7, 1, 0, "kflC_FilterContainerShortcut"},
    {7, 10, 849, "kflC_FilterContainerInModelShortcut"},
    {7, 13, 10, "kflC_FCWrapper"},
};
static_assert(std::size(kArchRows) == 14);
}  // namespace

typ_ArchCompEntry kflC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kflC_formalize() {}

int QMXOdbKflC_count() { return count; }

void QMXOdbKflC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kflC_RegisterDescriptions();
  bas_StartJournal::Start("QMXOdbKflC");
  typ_ArchCompTable::InsertEntry(kArchKey, kflC_ArchEntry());
  {
    kflC_FilterContainer filters;
    ddr_Model::RegisterExtension(kflC_FCWrapper(filters));
    bas_StartJournal::Register("kflC_FCWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kflC_Filter::InitializeMetadata, 7);
  metadata.initClassMetadata(&kflC_ButterworthFilter::InitializeMetadata, 7);
  metadata.initClassMetadata(&kflC_Chebyshev1Filter::InitializeMetadata, 7);
  metadata.initClassMetadata(&kflC_Chebyshev2Filter::InitializeMetadata, 7);
  metadata.initClassMetadata(&kflC_OperatorFilter::InitializeMetadata, 7);
  metadata.initClassMetadata(&kflC_FilterContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kflC_FCWrapper::InitializeMetadata, 4);
}

void QMXOdbKflC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kflC_UnregisterDescriptions();
  bas_StartJournal::Stop("QMXOdbKflC");
  ddr_Model::UnRegisterExtension(kflC_FilterContainer::Names::kRepositoryName);
}
