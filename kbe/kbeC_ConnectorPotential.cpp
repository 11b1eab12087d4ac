#include "kbe/kbeC_ConnectorPotential.h"

#include "framework/fw_FieldTable.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorPotential::kbeC_ConnectorPotential(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kbeC_ConnectorPotential::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kbeC_ConnectorPotential* kbeC_ConnectorPotential::Copy() const { return new kbeC_ConnectorPotential(*this); }
bool kbeC_ConnectorPotential::operator==(const kbeC_ConnectorPotential& o) const { return fw_EqualFields(*this, o); }
void kbeC_ConnectorPotential::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kbeC_ConnectorPotential>(r); }
void kbeC_ConnectorPotential::CowDtor(void* p) { fw_CowDtor<kbeC_ConnectorPotential>(p); }
const kbeC_DerivedComponent& kbeC_ConnectorPotential::GetDerivedComponent() const { return kbeC_Present(derivedComponent, "derivedComponent"); }
kbeC_DerivedComponent& kbeC_ConnectorPotential::ModifyDerivedComponent() { return kbeC_Present(derivedComponent, "derivedComponent"); }

void kbeC_ConnectorPotential::AssertValid() const {
  if (componentStyle == ComponentStyleEnm::DERIVED_COMPONENT) {
    kbeC_Assert(!derivedComponent.IsNull(), kbeC_PotentialNoDerivedComponent);
    derivedComponent->AssertValid();
  } else {
    kbeC_Assert(kbeC_InRange(componentNumber), kbeC_PotentialComponentOutOfRange);
  }
  kbeC_Assert(positiveExponent >= 0, kbeC_PositiveExponentNegative);
}
