#include "kop/kopC_Variable.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_Variable::kopC_Variable(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_Variable::CowDtor(void* p) { cow_Destroy(static_cast<kopC_Variable*>(static_cast<cls_Root<kopC_Variable>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_Variable::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_Variable>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
