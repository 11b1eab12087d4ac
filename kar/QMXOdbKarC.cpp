#include "kar/QMXOdbKarC.h"

#include <iterator>

#include "kar/karC_Descriptions.h"
#include "kar/karC_RRWrapper.h"
#include "kar/karC_RemeshingRule.h"
#include "kar/karC_RemeshingRuleCont.h"
#include "kar/karC_RemeshingRule_866.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 855;

// Row i names the class whose type id is (855 << 16) | i. Rules are reached only through the
// model's own container, so its in-model shortcut is the rule shortcut's owner and the module
// needs no separate container shortcut rows.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "karC_RemeshingRule"},
    {7, 1, 10, "karC_RemeshingRuleCont"},
    {7, 1, 0, "karC_RemeshingRuleIMPLSC"},
    {7, 3, 855, "karC_RemeshingRuleInRemeshingRuleContShortcut"},
    {7, 2, 855, "karC_RemeshingRuleContInModelShortcut"},
};
static_assert(std::size(kArchRows) == 6);
}  // namespace

typ_ArchCompEntry karC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void karC_formalize() {}

int QMXOdbKarC_count() { return count; }

void QMXOdbKarC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  karC_RegisterDescriptions();
  bas_StartJournal::Start("QMXOdbKarC");
  typ_ArchCompTable::InsertEntry(kArchKey, karC_ArchEntry());
  {
    karC_RemeshingRuleCont rules;
    ddr_Model::RegisterExtension(karC_RRWrapper(rules));
    bas_StartJournal::Register("karC_RRWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&karC_RemeshingRule::InitializeMetadata, 7);
  metadata.initClassMetadata(&karC_RemeshingRuleCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&karC_RRWrapper::InitializeMetadata, 4);
  omi_Singleton<dbc_OldClassRegistrar>::Instance().Register(
      cow_CountedHld<dbc_OldClassVersion>(new karC_RemeshingRule_866), 5);
}

void QMXOdbKarC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  karC_UnregisterDescriptions();
  bas_StartJournal::Stop("QMXOdbKarC");
  ddr_Model::UnRegisterExtension(karC_RemeshingRuleCont::Names::kRepositoryName);
}
