#include "kop/kopC_Request.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_Request::kopC_Request(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_Request::CowDtor(void* p) { cow_Destroy(static_cast<kopC_Request*>(static_cast<cls_Root<kopC_Request>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_Request::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_Request>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
