#include "kbe/kbeC_DerivedComponent.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_DerivedComponent::kbeC_DerivedComponent(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kbeC_DerivedComponent::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_DerivedComponent* kbeC_DerivedComponent::Copy() const { return new kbeC_DerivedComponent(*this); }
bool kbeC_DerivedComponent::operator==(const kbeC_DerivedComponent& o) const { return fw_EqualFields(*this, o); }
void kbeC_DerivedComponent::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_DerivedComponent>(r); }
void kbeC_DerivedComponent::CowDtor(void* p) { fw_CowDtor<kbeC_DerivedComponent>(p); }

void kbeC_DerivedComponent::AssertValid() const {
  for (const auto& t : cdcTerms)
    if (!t.IsNull()) t->AssertValid();
}

void kbeC_DerivedComponent::AssertComponentsAvailable(const cow_List<std::int32_t>& available) const {
  auto offered = [&](std::int32_t c) {
    for (std::int32_t a : available)
      if (a == c) return true;
    return false;
  };
  for (const auto& t : cdcTerms) {
    if (t.IsNull()) continue;
    bool ok = true;
    for (std::int32_t c : t->GetIntrinsicComponents()) ok = ok && offered(c);
    for (std::int32_t c : t->GetIndepComponents()) ok = ok && offered(c);
    kbeC_AssertContent(ok, kbeC_UnavailableComponents, kbeC_ComponentText(available));
  }
}
