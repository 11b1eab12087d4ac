#include "kco/kcoC_Constraint.h"

#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "kco/kcoC_ConstraintTypeLabelMap.h"

kcoC_Constraint::kcoC_Constraint(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kcoC_Constraint::CowDtor(void* p) { cow_Destroy(static_cast<kcoC_Constraint*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kcoC_Constraint::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kcoC_Constraint>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

const char* kcoC_Constraint::DisplayLabel() const { return kcoC_ConstraintTypeLabelMap::Instance().Label(ClassTypeId()); }
