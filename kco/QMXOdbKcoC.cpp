#include "kco/QMXOdbKcoC.h"

#include <iterator>

#include "kco/kcoC_AdjustPoints.h"
#include "kco/kcoC_CCWrapper.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_ConstraintContainer.h"
#include "kco/kcoC_ConstraintTypeLabelMap.h"
#include "kco/kcoC_Coupling.h"
#include "kco/kcoC_DdbDisplayBody.h"
#include "kco/kcoC_Descriptions.h"
#include "kco/kcoC_DisplayBody.h"
#include "kco/kcoC_EmbeddedRegion.h"
#include "kco/kcoC_Equation.h"
#include "kco/kcoC_EquationTerm.h"
#include "kco/kcoC_MPC.h"
#include "kco/kcoC_RigidBody.h"
#include "kco/kcoC_RigidBody_702.h"
#include "kco/kcoC_RigidBody_720.h"
#include "kco/kcoC_ShellSolidCoupling.h"
#include "kco/kcoC_Tie.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 720;

// Row i names the class whose type id is (720 << 16) | i.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kcoC_Constraint"},
    {7, 1, 0, "kcoC_Tie"},
    {7, 1, 0, "kcoC_Coupling"},
    {7, 1, 0, "kcoC_MPC"},
    {7, 1, 0, "kcoC_RigidBody"},
    {7, 1, 0, "kcoC_Equation"},
    {7, 1, 0, "kcoC_EquationTerm"},
    {7, 1, 0, "kcoC_EmbeddedRegion"},
    {7, 1, 0, "kcoC_ShellSolidCoupling"},
    {7, 1, 0, "kcoC_DisplayBody"},
    {7, 1, 0, "kcoC_DdbDisplayBody"},
    {7, 1, 0, "kcoC_AdjustPoints"},
    {7, 1, 10, "kcoC_ConstraintContainer"},
    {7, 1, 0, "kcoC_ConstraintIMPLSC"},
    {7, 1, 0, "kcoC_ConstraintShortcut"},
    {7, 14, 720, "kcoC_ConstraintInConstraintContainerShortcut"},
    {7, 1, 0, "kcoC_ConstraintContainerIMPLSC"},
    {7, 1, 0, "kcoC_ConstraintContainerShortcut"},
    {7, 17, 720, "kcoC_ConstraintContainerInModelShortcut"},
    {7, 13, 10, "kcoC_CCWrapper"},
};
static_assert(std::size(kArchRows) == 21);
}  // namespace

typ_ArchCompEntry kcoC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kcoC_formalize() {}

int QMXOdbKcoC_count() { return count; }

void QMXOdbKcoC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kcoC_RegisterDescriptions();
  bas_StartJournal::Start("QMXOdbKcoC");
  typ_ArchCompTable::InsertEntry(kArchKey, kcoC_ArchEntry());
  {
    kcoC_ConstraintContainer constraints;
    kcoC_CCWrapper prototype(constraints);
    ddr_Model::RegisterExtension(prototype);
    bas_StartJournal::Register("kcoC_CCWrapper");
  }
  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kcoC_Constraint::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_Tie::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_Coupling::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_MPC::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_RigidBody::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_EquationTerm::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_Equation::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_EmbeddedRegion::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_ShellSolidCoupling::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_DisplayBody::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_DdbDisplayBody::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_AdjustPoints::InitializeMetadata, 7);
  metadata.initClassMetadata(&kcoC_ConstraintContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kcoC_CCWrapper::InitializeMetadata, 4);
  auto& old = omi_Singleton<dbc_OldClassRegistrar>::Instance();
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kcoC_RigidBody_702), 5);
  old.Register(cow_CountedHld<dbc_OldClassVersion>(new kcoC_RigidBody_720), 5);
}

void QMXOdbKcoC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kcoC_UnregisterDescriptions();
  bas_StartJournal::Stop("QMXOdbKcoC");
  ddr_Model::UnRegisterExtension(kcoC_ConstraintContainer::Names::kRepositoryName);
  kcoC_ConstraintTypeLabelMap::Release();
}
