#include "kfd/QMXOdbKfdC.h"

#include <iterator>
#include "kfd/kfdC_Advice.h"
#include "kfd/kfdC_AllFields.h"

#include "kfd/kfdC_AnalyticalField.h"
#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DataTable.h"
#include "kfd/kfdC_Descriptions.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_Field.h"
#include "kfd/kfdC_FieldVersions.h"
#include "kfd/kfdC_MappedField.h"
#include "kfd/kfdC_OdbMeshRegionData.h"
#include "platform/base/bas_StartCount.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/base/omi_Singleton.h"
#include "platform/model/ddr_Model.h"
#include "platform/persist/cls_ClassRegistrar.h"

namespace {
int count = 0;
constexpr std::uint16_t kArchKey = 858;

// Row i names the class whose type id is (858 << 16) | i. The two containers are the model
// extensions themselves, so the module needs no wrapper rows.
constexpr typ_ArchCompRecord kArchRows[] = {
    {0, 0, 0, nullptr},
    {7, 1, 0, "kfdC_Field"},
    {7, 1, 0, "kfdC_AnalyticalField"},
    {7, 1, 0, "kfdC_ExpressionField"},
    {7, 1, 0, "kfdC_MappedField"},
    {7, 1, 10, "kfdC_AnalyticalFieldContainer"},
    {7, 1, 0, "kfdC_DiscreteField"},
    {7, 1, 10, "kfdC_DiscreteFieldContainer"},
    {7, 1, 0, "kfdC_DataTable"},
    {7, 1, 0, "kfdC_OdbMeshRegionData"},
};
static_assert(std::size(kArchRows) == 10);

void RegisterOld(dbc_OldClassVersion* descriptor) {
  omi_Singleton<dbc_OldClassRegistrar>::Instance().Register(cow_CountedHld<dbc_OldClassVersion>(descriptor), 5);
}
}  // namespace

typ_ArchCompEntry kfdC_ArchEntry() {
  return typ_ArchCompEntry(kArchRows, static_cast<int>(std::size(kArchRows)));
}

void kfdC_formalize() {}

int QMXOdbKfdC_count() { return count; }

void QMXOdbKfdC_initialize(int& tally) {
  if (!bas_FirstStart(count, tally)) return;
  kfdC_RegisterDescriptions();
  kfdC_RegisterAdvice();
  bas_StartJournal::Start("QMXOdbKfdC");
  typ_ArchCompTable::InsertEntry(kArchKey, kfdC_ArchEntry());
  ddr_Model::RegisterExtension(kfdC_AnalyticalFieldContainer());
  bas_StartJournal::Register("kfdC_AnalyticalFieldContainer");
  ddr_Model::RegisterExtension(kfdC_DiscreteFieldContainer());
  bas_StartJournal::Register("kfdC_DiscreteFieldContainer");
  ddr_Model::RegisterView(kfdC_Field::kCollectionName, &kfdC_AllFieldsView);

  auto& metadata = omi_Singleton<cls_MetadataRegistrar>::Instance();
  metadata.initClassMetadata(&kfdC_Field::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_AnalyticalField::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_ExpressionField::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_OdbMeshRegionData::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_MappedField::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_DataTable::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_DiscreteField::InitializeMetadata, 7);
  metadata.initClassMetadata(&kfdC_AnalyticalFieldContainer::InitializeMetadata, 3);
  metadata.initClassMetadata(&kfdC_DiscreteFieldContainer::InitializeMetadata, 3);

  RegisterOld(new kfdC_ExpressionField_700);
  RegisterOld(new kfdC_DiscreteField_1000);
  RegisterOld(new kfdC_DiscreteField_1027);
  RegisterOld(new kfdC_DiscreteField_1029);
  RegisterOld(new kfdC_DiscreteField_1042);
  RegisterOld(new kfdC_MappedField_1500);
  RegisterOld(new kfdC_MappedField_1505);
  RegisterOld(new kfdC_MappedField_1509);
  RegisterOld(new kfdC_MappedField_1526);
  RegisterOld(new kfdC_MappedField_1571);
  RegisterOld(new kfdC_MappedField_1589);
  RegisterOld(new kfdC_MappedField_1592);
  RegisterOld(new kfdC_MappedField_1632);
}

void QMXOdbKfdC_finalize(int& tally) {
  if (!bas_LastStop(count, tally)) return;
  kfdC_UnregisterDescriptions();
  kfdC_UnregisterAdvice();
  bas_StartJournal::Stop("QMXOdbKfdC");
  ddr_Model::UnRegisterExtension(kfdC_AnalyticalFieldContainer::Names::kRepositoryName);
  ddr_Model::UnRegisterExtension(kfdC_DiscreteFieldContainer::Names::kRepositoryName);
  ddr_Model::UnRegisterView(kfdC_Field::kCollectionName);
}
