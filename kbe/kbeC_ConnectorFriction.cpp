#include "kbe/kbeC_ConnectorFriction.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kbe/kbeC_Traits.h"
#include "kbe/kbeC_assert.h"
#include "kbe/kbeC_Checks.h"
#include "kbe/kbeC_PotentialIds.h"

kbeC_ConnectorFriction::kbeC_ConnectorFriction(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }
void kbeC_ConnectorFriction::InitializeMetadata(cls_ClassRegistrar& r) {
  kbeC_InitializePotentialIdMetadata<kbeC_ConnectorFriction, kbeC_PlainPotentialIds<kbeC_ConnectorFriction>>(r);
}
const kbeC_TangentialBehavior& kbeC_ConnectorFriction::GetTangentialBehavior() const { return kbeC_Present(tangentialBehavior, "tangentialBehavior"); }
kbeC_TangentialBehavior& kbeC_ConnectorFriction::ModifyTangentialBehavior() { return kbeC_Present(tangentialBehavior, "tangentialBehavior"); }
const kbeC_DerivedComponent& kbeC_ConnectorFriction::GetDerivedComponent() const { return kbeC_Present(derivedComponent, "derivedComponent"); }
kbeC_DerivedComponent& kbeC_ConnectorFriction::ModifyDerivedComponent() { return kbeC_Present(derivedComponent, "derivedComponent"); }
const kbeC_ConnectorOptions& kbeC_ConnectorFriction::GetOptions() const { return kbeC_Present(options, "options"); }
kbeC_ConnectorOptions& kbeC_ConnectorFriction::ModifyOptions() { return kbeC_Present(options, "options"); }

void kbeC_ConnectorFriction::AppendConnectorPotential(const kbeC_ConnectorPotential& p) {
  connectorPotentials.Append(cow_COW<kbeC_ConnectorPotential>(p));
  ++lastId;
}

void kbeC_ConnectorFriction::AssertValid() const {
  kbeC_Assert(stickStiffness == kbeC_kUnspecified || stickStiffness > 0, kbeC_StickStiffnessNotPositive);
  if (componentType != ComponentTypeEnm::NO_INDEPENDENT_COMPONENTS) {
    kbeC_Assert(!independentComponents.empty(), kbeC_FrictionNoIndependentComponent);
    for (std::int32_t c : independentComponents) kbeC_Assert(kbeC_InRange(c), kbeC_IndependentOutOfRange);
  }
  kbeC_Assert(kbeC_InRange(tangentDirection), kbeC_SlipDirectionOutOfRange);
  // Both hold whether or not the contact-force component is in use, so that a stored choice is
  // always one that could be switched on.
  kbeC_Assert(kbeC_InRange(contactForceComponent), kbeC_ContactForceComponentOutOfRange);
  kbeC_Assert(!(contactForceStyle == ContactForceStyleEnm::DERIVED_COMPONENT && derivedComponent.IsNull()),
              kbeC_ContactForceNoDerivedComponent);
  if (!derivedComponent.IsNull()) derivedComponent->AssertValid();
  // An enumeration always holds one of its literals; these guard values that came in unchecked.
  kbeC_Assert(kbeC_Listed(slipStyle), kbeC_NoSlipStyle);
  kbeC_Assert(kbeC_Listed(contactForceStyle.value), kbeC_NoContactForceStyle);
  kbeC_Assert(forcePotentialExponent > 0, kbeC_PotentialExponentNotPositive);
  kbeC_CheckPotentials(connectorPotentials);
  kbeC_Assert(!kbeC_AllZero(table), kbeC_ContactForceTableZero);
  for (const auto& f : contactForces)
    if (!f.IsNull()) f->AssertValid();
  if (!tangentialBehavior.IsNull()) tangentialBehavior->AssertValid();
  if (!options.IsNull()) {
    options->AssertValid();
    // Rate options apply to the internal contact-force data of the predefined model only.
    kbeC_AssertContent(frictionModel == FrictionModelEnm::PREDEFINED || options->RateOptionsAtDefaults(),
                       kbeC_RateOptionsNotAllowed, "Friction; internal contact forces");
  }
}

template class fw_PersistentClass<kbeC_ConnectorFriction, kbeC_ConnectorBehaviorOption>;
