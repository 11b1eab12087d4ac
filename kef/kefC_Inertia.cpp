#include "kef/kefC_Inertia.h"

#include <string_view>

#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "kef/kefC_TypeLabelMap.h"
#include "kef/kefC_assert.h"

kefC_Inertia::kefC_Inertia(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kefC_Inertia::CowDtor(void* p) { cow_Destroy(static_cast<kefC_Inertia*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kefC_Inertia::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kefC_Inertia>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

const char* kefC_Inertia::DisplayLabel() const { return kefC_TypeLabelMap::Instance().Label(ClassTypeId()); }

void kefC_Inertia::AssertEditable(const char* field) const {
  if (std::string_view(field) != "suppress") kefC_Assert(!suppress, kefC_SuppressedInertiaEdited);
}
