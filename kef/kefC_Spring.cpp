#include "kef/kefC_Spring.h"

#include <string_view>

#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "kef/kefC_assert.h"
#include "kef/kefC_TypeLabelMap.h"

kefC_Spring::kefC_Spring(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kefC_Spring::CowDtor(void* p) { cow_Destroy(static_cast<kefC_Spring*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kefC_Spring::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kefC_Spring>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

const char* kefC_Spring::DisplayLabel() const { return kefC_TypeLabelMap::Instance().Label(ClassTypeId()); }

void kefC_Spring::AssertSpringValid() const {
  kefC_Assert(applySpring || applyDashpot, kefC_SpringNothingApplied);
  kefC_Assert(!applySpring || springStiffness > 0, kefC_SpringStiffnessNotPositive);
  kefC_Assert(!applyDashpot || dashpotCoeff > 0, kefC_DashpotCoeffNotPositive);
}

void kefC_Spring::AssertEditable(const char* field) const {
  if (std::string_view(field) != "suppress") kefC_Assert(!suppress, kefC_SuppressedSpringEdited);
}
