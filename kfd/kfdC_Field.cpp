#include "kfd/kfdC_Field.h"

#include "platform/base/cow_COW.h"
#include "platform/persist/cls_TypedMetadata.h"

kfdC_Field::kfdC_Field(const cls_ReadVisitor& r) : uid(r.GetUid()) {}
void kfdC_Field::CowDtor(void* p) { cow_Destroy(static_cast<kfdC_Field*>(p)); }

// An abstract class of the family: the records of the concrete classes carry its members; its
// metadata lets readers and repositories treat the family as one.
void kfdC_Field::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kfdC_Field>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
