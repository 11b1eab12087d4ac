#include "kop/kopC_StopCondition.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_StopCondition::kopC_StopCondition(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_StopCondition::CowDtor(void* p) { cow_Destroy(static_cast<kopC_StopCondition*>(static_cast<cls_Root<kopC_StopCondition>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_StopCondition::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_StopCondition>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
