#include "kbe/kbeC_ContactForce.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ContactForce::kbeC_ContactForce(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
const kbeC_DerivedComponent& kbeC_ContactForce::GetDerivedComponent() const { return kbeC_Present(derivedComponent, "derivedComponent"); }
kbeC_DerivedComponent& kbeC_ContactForce::ModifyDerivedComponent() { return kbeC_Present(derivedComponent, "derivedComponent"); }

void kbeC_ContactForce::AssertValid() const {
  kbeC_Assert(kbeC_InRange(independentComponent), kbeC_IndependentOutOfRange);
  if (contactForceStyle == ContactForceStyleEnm::COMPONENT_NUMBER) {
    kbeC_Assert(kbeC_InRange(contactForceComponent), kbeC_ContactForceComponentOutOfRange);
  } else {
    kbeC_Assert(!derivedComponent.IsNull(), kbeC_ContactForceNoDerivedComponent);
    derivedComponent->AssertValid();
  }
  kbeC_Assert(!kbeC_AllZero(table), kbeC_ContactForceTableZero);
}

template class fw_PersistentClass<kbeC_ContactForce, mem_Allocated>;
