#include "kbe/kbeC_ConnectorPotential.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"

kbeC_ConnectorPotential::kbeC_ConnectorPotential(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
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

template class fw_PersistentClass<kbeC_ConnectorPotential, mem_Allocated>;
