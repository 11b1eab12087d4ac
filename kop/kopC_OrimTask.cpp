#include "kop/kopC_OrimTask.h"

#include "framework/fw_FieldTable.h"
#include "platform/persist/cls_Family.h"
#include "kop/kopC_assert.h"

kopC_OrimTask::kopC_OrimTask(const cls_ReadVisitor& r) : kopC_Task(r) {}
void kopC_OrimTask::CowDtor(void* p) { cow_Destroy(static_cast<kopC_OrimTask*>(static_cast<cls_Root<kopC_OrimTask>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one, and lists the attributes this part adds to the rows of every kind.
void kopC_OrimTask::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new fw_ClassMetadata<kopC_OrimTask>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
  md->AddAttribute(cls_FieldHandle(8, "algorithm"), fw_Traits<kopC_AlgorithmEnm>::kType, 1, fw_Traits<kopC_AlgorithmEnm>::kCollection);
  md->AddAttribute(cls_FieldHandle(100, "tessarSensitivities"), fw_Traits<bool>::kType, 1, fw_Traits<bool>::kCollection);
  md->AddAttribute(cls_FieldHandle(101, "groupOperator"), fw_Traits<bool>::kType, 1, fw_Traits<bool>::kCollection);
}

// The task container copies through here. The registry clones a task of any kind registered in
// this family, so the base keeps no list of its kinds; a kind nobody registered is refused.
kopC_BaseOptimization* kopC_OrimTask::DoCopy() const {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByTypeId(ClassTypeId());
  const bool known = md && md->CanConstruct() && md->IsA(cls_MetadataOfClass<kopC_OrimTask>());
  kopC_Assert(known, kopC_UnknownTaskCopy);
  using Root = cls_Root<kopC_OrimTask>;
  return static_cast<kopC_OrimTask*>(static_cast<Root*>(md->Clone(static_cast<const Root*>(this))));
}

// Tessar sensitivities and the group operator need the general algorithm; every kind this module
// knows is a topology, shape, sizing or bead task, so the test applies to all of them.
void kopC_OrimTask::AssertValidTask() const {
  if (!IsGeneral()) {
    kopC_Assert(!tessarSensitivities, kopC_TessarNotGeneral);
    kopC_Assert(!groupOperator, kopC_GroupOperatorNotGeneral);
  }
  AssertContents(ClassTypeId(), IsGeneral());
}
