#include "kef/kefC_Imperfection.h"

#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "kef/kefC_TypeLabelMap.h"

kefC_Imperfection::kefC_Imperfection(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kefC_Imperfection::CowDtor(void* p) { cow_Destroy(static_cast<kefC_Imperfection*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kefC_Imperfection::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kefC_Imperfection>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

const char* kefC_Imperfection::DisplayLabel() const { return kefC_TypeLabelMap::Instance().Label(ClassTypeId()); }
