#include "kop/kopC_OrimDesignResponse.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_OrimDesignResponse::kopC_OrimDesignResponse(const cls_ReadVisitor& r) : kopC_DesignResponse(r) {}
void kopC_OrimDesignResponse::CowDtor(void* p) { cow_Destroy(static_cast<kopC_OrimDesignResponse*>(static_cast<cls_Root<kopC_OrimDesignResponse>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_OrimDesignResponse::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_OrimDesignResponse>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
