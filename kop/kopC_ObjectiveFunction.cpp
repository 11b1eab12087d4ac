#include "kop/kopC_ObjectiveFunction.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_ObjectiveFunction::kopC_ObjectiveFunction(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_ObjectiveFunction::CowDtor(void* p) { cow_Destroy(static_cast<kopC_ObjectiveFunction*>(static_cast<cls_Root<kopC_ObjectiveFunction>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_ObjectiveFunction::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_ObjectiveFunction>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
