#include "kma/kmaC_MaterialOption.h"

#include "platform/persist/cls_TypedMetadata.h"

kmaC_MaterialOption::kmaC_MaterialOption(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kmaC_MaterialOption::DBWrite(const cls_WriteVisitor& w) const { w.StartWrite(DynTypeId(), uid); }

bool kmaC_MaterialOption::IsA(unsigned typeId) const {
  if (typeId == DynTypeId()) return true;
  const cls_ClassMetadata* mine = cls_ClassRegistrar::Instance().ByTypeId(DynTypeId());
  const cls_ClassMetadata* other = cls_ClassRegistrar::Instance().ByTypeId(typeId);
  return mine && other && mine->IsA(*other);
}

void kmaC_MaterialOption::CowDtor(void* p) { cow_Destroy(static_cast<kmaC_MaterialOption*>(p)); }

// The root has no fields of its own; its metadata lets readers and slots treat the family as one.
void kmaC_MaterialOption::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kmaC_MaterialOption>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
