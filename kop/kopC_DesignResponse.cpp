#include "kop/kopC_DesignResponse.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_DesignResponse::kopC_DesignResponse(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_DesignResponse::CowDtor(void* p) { cow_Destroy(static_cast<kopC_DesignResponse*>(static_cast<cls_Root<kopC_DesignResponse>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_DesignResponse::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_DesignResponse>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
