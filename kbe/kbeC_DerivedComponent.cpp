#include "kbe/kbeC_DerivedComponent.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_DerivedComponent::kbeC_DerivedComponent(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

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

template class fw_PersistentClass<kbeC_DerivedComponent, mem_Allocated>;
