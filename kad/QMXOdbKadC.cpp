#include "kad/QMXOdbKadC.h"

#include "kad/kadC_ACWrapper.h"
#include "kad/kadC_Advice.h"
#include "kad/kadC_ADWrapper.h"
#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshCtrl_302.h"
#include "kad/kadC_AdptMeshCtrl_829.h"
#include "kad/kadC_AdptMeshDomCont.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "kad/kadC_Descriptions.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/model/ddr_Model.h"
#include "platform/base/omi_Singleton.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 616;

// Row i names the class whose type id is (616 << 16) | i.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kadC_AdptMeshCtrl"},
    {7, 1, 0, "kadC_AdptMeshDomain"},
    {7, 1, 10, "kadC_AdptMeshDomCont"},
    {7, 1, 10, "kadC_AdptMeshCtrlCont"},
    {7, 1, 0, "kadC_AdptMeshCtrlIMPLSC"},
    {7, 1, 0, "kadC_AdptMeshCtrlShortcut"},
    {7, 5, 616, "kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut"},
    {7, 1, 0, "kadC_AdptMeshCtrlContIMPLSC"},
    {7, 1, 0, "kadC_AdptMeshCtrlContShortcut"},
    {7, 1, 0, "kadC_AdptMeshDomainIMPLSC"},
    {7, 1, 0, "kadC_AdptMeshDomainShortcut"},
    {7, 10, 616, "kadC_AdptMeshDomainInAdptMeshDomContShortcut"},
    {7, 1, 0, "kadC_AdptMeshDomContIMPLSC"},
    {7, 1, 0, "kadC_AdptMeshDomContShortcut"},
    {7, 8, 616, "kadC_AdptMeshCtrlContInModelShortcut"},
    {7, 13, 10, "kadC_ACWrapper"},
};
}  // namespace

typ_ArchCompEntry kadC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kadC_formalize() {}

int QMXOdbKadC_count() { return count; }

void QMXOdbKadC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kadC_RegisterDescriptions();
  kadC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKadC");
  typ_ArchCompTable::InsertEntry(kArchKey, kadC_ArchEntry());
  {
    kadC_AdptMeshCtrlCont controls;
    kadC_ACWrapper prototype(controls);
    ddr_Model::RegisterAdaptiveMeshControlContainer(prototype);
    bas_StartJournal::Register("kadC_ACWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kadC_AdptMeshDomain::InitializeMetadata, 7);
  metadata.initClassMetadata(&kadC_AdptMeshCtrl::InitializeMetadata, 7);
  metadata.initClassMetadata(&kadC_AdptMeshDomCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&kadC_AdptMeshCtrlCont::InitializeMetadata, 3);
  metadata.initClassMetadata(&kadC_ACWrapper::InitializeMetadata, 4);
  auto& old = omi_Singleton<dbc_OldClassRegistrar>::Instance();
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kadC_AdptMeshCtrl_302), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kadC_AdptMeshCtrl_829), 5);
  // Domains live in the model too, after everything the module registers for its controls.
  metadata.initClassMetadata(&kadC_ADWrapper::InitializeMetadata, 4);
  {
    kadC_AdptMeshDomCont domains;
    kadC_ADWrapper prototype(domains);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kadC_ADWrapper");
  }
}

void QMXOdbKadC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kadC_UnregisterDescriptions();
  kadC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKadC");
  ddr_Model::UnRegisterAdaptiveMeshControlContainer();
  ddr_Model::UnRegisterExtension(kadC_AdptMeshDomCont::Names::kRepositoryName);
}
