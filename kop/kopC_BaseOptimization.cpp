#include "kop/kopC_BaseOptimization.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_BaseOptimization::kopC_BaseOptimization(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_BaseOptimization::CowDtor(void* p) { cow_Destroy(static_cast<kopC_BaseOptimization*>(static_cast<cls_Root<kopC_BaseOptimization>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_BaseOptimization::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_BaseOptimization>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
