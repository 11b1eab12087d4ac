#include "kbe/kbeC_ConnectorBehaviorOption.h"

#include "platform/base/cow_COW.h"
#include "platform/persist/cls_TypedMetadata.h"

kbeC_ConnectorBehaviorOption::kbeC_ConnectorBehaviorOption(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kbeC_ConnectorBehaviorOption::CowDtor(void* p) { cow_Destroy(static_cast<kbeC_ConnectorBehaviorOption*>(p)); }

// The root has no fields of its own; its metadata lets lists, repositories and readers treat the
// family as one.
void kbeC_ConnectorBehaviorOption::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kbeC_ConnectorBehaviorOption>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
