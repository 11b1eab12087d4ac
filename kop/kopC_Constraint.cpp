#include "kop/kopC_Constraint.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_Constraint::kopC_Constraint(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_Constraint::CowDtor(void* p) { cow_Destroy(static_cast<kopC_Constraint*>(static_cast<cls_Root<kopC_Constraint>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_Constraint::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_Constraint>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
