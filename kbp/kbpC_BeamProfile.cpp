#include "kbp/kbpC_BeamProfile.h"

#include "kbp/kbpC_ProfileLabels.h"
#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"

kbpC_BeamProfile::kbpC_BeamProfile(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

const char* kbpC_BeamProfile::DisplayLabel() const { return kbpC_DisplayLabel(ClassTypeId()); }

void kbpC_BeamProfile::CowDtor(void* p) { cow_Destroy(static_cast<kbpC_BeamProfile*>(p)); }

// The root has no fields of its own; its metadata lets readers and repositories treat the
// family as one.
void kbpC_BeamProfile::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kbpC_BeamProfile>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}
