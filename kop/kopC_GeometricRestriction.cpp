#include "kop/kopC_GeometricRestriction.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_GeometricRestriction::kopC_GeometricRestriction(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kopC_GeometricRestriction::CowDtor(void* p) { cow_Destroy(static_cast<kopC_GeometricRestriction*>(static_cast<cls_Root<kopC_GeometricRestriction>*>(p))); }

// An abstract part of the family: its metadata lets readers and repositories treat the family
// as one.
void kopC_GeometricRestriction::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kopC_GeometricRestriction>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
