#include "kef/kefC_Fastener.h"

#include <string_view>

#include "platform/persist/cls_TypedMetadata.h"
#include "platform/base/cow_COW.h"
#include "kef/kefC_assert.h"
#include "kef/kefC_TypeLabelMap.h"

kefC_Fastener::kefC_Fastener(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

void kefC_Fastener::CowDtor(void* p) { cow_Destroy(static_cast<kefC_Fastener*>(p)); }

// The root registers no attributes: each kind registers the whole of its own layout.
void kefC_Fastener::InitializeMetadata(cls_ClassRegistrar& registrar) {
  auto* md = new cls_TypedMetadata<kefC_Fastener>();
  registrar.AddClassMD(md);
  md->AddDtor(&CowDtor);
}

const char* kefC_Fastener::DisplayLabel() const { return kefC_TypeLabelMap::Instance().Label(ClassTypeId()); }

// "WHOLE_SURFACE" is a radius that needs no value, so it passes.
void kefC_Fastener::AssertFastenerValid() const {
  kefC_Assert(influenceRadius.value > 0, kefC_InfluenceRadiusNotPositive);
}

void kefC_Fastener::AssertEditable(const char* field) const {
  if (std::string_view(field) != "suppress") kefC_Assert(!suppress, kefC_SuppressedFastenerEdited);
}
