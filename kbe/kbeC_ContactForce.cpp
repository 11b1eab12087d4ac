#include "kbe/kbeC_ContactForce.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ContactForce::kbeC_ContactForce(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kbeC_ContactForce::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ContactForce* kbeC_ContactForce::Copy() const { return new kbeC_ContactForce(*this); }
bool kbeC_ContactForce::operator==(const kbeC_ContactForce& o) const { return fw_EqualFields(*this, o); }
void kbeC_ContactForce::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ContactForce>(r); }
void kbeC_ContactForce::CowDtor(void* p) { fw_CowDtor<kbeC_ContactForce>(p); }
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
