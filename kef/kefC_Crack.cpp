#include "kef/kefC_Crack.h"

#include <string_view>

#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "kef/kefC_TypeLabelMap.h"
#include "kef/kefC_assert.h"

kefC_Crack::kefC_Crack(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kefC_Crack::CowDtor(void* p) { cow_Destroy(static_cast<kefC_Crack*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kefC_Crack::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kefC_Crack>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

const char* kefC_Crack::DisplayLabel() const { return kefC_TypeLabelMap::Instance().Label(ClassTypeId()); }

void kefC_Crack::AssertEditable(const char* field) const {
  if (std::string_view(field) != "suppress") kefC_Assert(!suppress, kefC_SuppressedCrackEdited);
}
