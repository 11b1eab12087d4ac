#include "kop/kopC_OrimTask.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_BeadTask.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SizingTask.h"
#include "kop/kopC_TopologyTask.h"
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

// The task container copies through here: each kind this module knows is copied as itself.
kopC_OrimTask* kopC_OrimTask::Copy() const {
  switch (ClassTypeId()) {
    case kopC_TopologyTask::TypeId():
      return new kopC_TopologyTask(static_cast<const kopC_TopologyTask&>(*this));
    case kopC_ShapeTask::TypeId():
      return new kopC_ShapeTask(static_cast<const kopC_ShapeTask&>(*this));
    case kopC_SizingTask::TypeId():
      return new kopC_SizingTask(static_cast<const kopC_SizingTask&>(*this));
    case kopC_BeadTask::TypeId():
      return new kopC_BeadTask(static_cast<const kopC_BeadTask&>(*this));
    default:
      kopC_Assert(false, kopC_UnknownTaskCopy);
      return nullptr;
  }
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
