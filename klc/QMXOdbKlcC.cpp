#include "klc/QMXOdbKlcC.h"

#include <iterator>

#include "klc/klcC_Descriptions.h"
#include "klc/klcC_LCCWrapper.h"
#include "klc/klcC_LoadCase.h"
#include "klc/klcC_LoadCaseContainer.h"
#include "klc/klcC_LoadCaseTerm.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 732;

// Row i names the class whose type id is (732 << 16) | i. Load cases are reached only through
// the model's own container, so its in-model shortcut is the load case shortcut's owner and the
// module needs no separate container shortcut rows.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "klcC_LoadCase"},
    {7, 1, 0, "klcC_LoadCaseTerm"},
    {7, 1, 10, "klcC_LoadCaseContainer"},
    {7, 1, 0, "klcC_LoadCaseIMPLSC"},
    {7, 1, 0, "klcC_LoadCaseShortcut"},
    {7, 4, 732, "klcC_LoadCaseInLoadCaseContainerShortcut"},
    {7, 3, 732, "klcC_LoadCaseContainerInModelShortcut"},
};
static_assert(std::size(kArchRows) == 8);
}  // namespace

typ_ArchCompEntry klcC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void klcC_formalize() {}

int QMXOdbKlcC_count() { return count; }

void QMXOdbKlcC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  klcC_RegisterDescriptions();
  bas_StartJournal::Start("QMXOdbKlcC");
  typ_ArchCompTable::InsertEntry(kArchKey, klcC_ArchEntry());
  {
    klcC_LoadCaseContainer cases;
    ddr_Model::RegisterExtension(klcC_LCCWrapper(cases));
    bas_StartJournal::Register("klcC_LCCWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&klcC_LoadCaseTerm::InitializeMetadata, 7);
  metadata.initClassMetadata(&klcC_LoadCase::InitializeMetadata, 7);
  metadata.initClassMetadata(&klcC_LoadCaseContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&klcC_LCCWrapper::InitializeMetadata, 4);
}

void QMXOdbKlcC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  klcC_UnregisterDescriptions();
  bas_StartJournal::Stop("QMXOdbKlcC");
  ddr_Model::UnRegisterExtension(klcC_LoadCaseContainer::Names::kRepositoryName);
}
