#include "kbe/kbeC_Legacy.h"

#include <vector>

#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_Rename.h"

void kbeC_OldVersion::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(to_).Upgrade(className_, typeId_, from_).BindConversionFunction(fn_);
}

namespace {
void SetNull(dbc_Row& row, const char* field) { row.Set(rfm_FieldHandle(field, -1), cls_Value()); }
void SetEmptyObjects(dbc_Row& row, const char* field) {
  row.Set(rfm_FieldHandle(field, -1), std::vector<cls_RecordPtr>());
}
}  // namespace

// --- damage: 811 had every component affected; 817 had no choice of degradation ----------------

kbeC_ConnectorDamage_811::kbeC_ConnectorDamage_811()
    : kbeC_OldVersion("kbeC_ConnectorDamage", kbeC_ConnectorDamage::TypeId(), 811, 817, &Upgrade_kbeC_ConnectorDamage_811) {}
void* Upgrade_kbeC_ConnectorDamage_811(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("useAffected", -1), false);
  newRow.Set(rfm_FieldHandle("affectedComponents", -1), std::vector<std::int32_t>());
  return nullptr;
}

kbeC_ConnectorDamage_817::kbeC_ConnectorDamage_817()
    : kbeC_OldVersion("kbeC_ConnectorDamage", kbeC_ConnectorDamage::TypeId(), 817, 836, &Upgrade_kbeC_ConnectorDamage_817) {}
void* Upgrade_kbeC_ConnectorDamage_817(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("degradation", -1), "MAXIMUM");
  return nullptr;
}

// --- damping: frequency dependency came with 1022, the structural type after it ----------------

kbeC_ConnectorDamping_811::kbeC_ConnectorDamping_811()
    : kbeC_OldVersion("kbeC_ConnectorDamping", kbeC_ConnectorDamping::TypeId(), 811, 1022, &Upgrade_kbeC_ConnectorDamping_811) {}
void* Upgrade_kbeC_ConnectorDamping_811(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("frequencyDependency", -1), false);
  return nullptr;
}

kbeC_ConnectorDamping_1022::kbeC_ConnectorDamping_1022()
    : kbeC_OldVersion("kbeC_ConnectorDamping", kbeC_ConnectorDamping::TypeId(), 1022, 1125,
                      &Upgrade_kbeC_ConnectorDamping_1022) {}
void* Upgrade_kbeC_ConnectorDamping_1022(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("connDampType", -1), "VISCOUS");
  return nullptr;
}

// --- elasticity: frequency dependency came with 836 ---------------------------------------------

kbeC_ConnectorElasticity_811::kbeC_ConnectorElasticity_811()
    : kbeC_OldVersion("kbeC_ConnectorElasticity", kbeC_ConnectorElasticity::TypeId(), 811, 836,
                      &Upgrade_kbeC_ConnectorElasticity_811) {}
void* Upgrade_kbeC_ConnectorElasticity_811(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("frequencyDependency", -1), false);
  return nullptr;
}

// --- friction: derived contact forces came with 836, the tangential behavior with 1022 ----------

kbeC_ConnectorFriction_811::kbeC_ConnectorFriction_811()
    : kbeC_OldVersion("kbeC_ConnectorFriction", kbeC_ConnectorFriction::TypeId(), 811, 836, &Upgrade_kbeC_ConnectorFriction_811) {}
void* Upgrade_kbeC_ConnectorFriction_811(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("contForceStyle", -1), "NUMBER");
  SetNull(newRow, "derivedComponent");
  SetEmptyObjects(newRow, "contactForces");
  return nullptr;
}

kbeC_ConnectorFriction_836::kbeC_ConnectorFriction_836()
    : kbeC_OldVersion("kbeC_ConnectorFriction", kbeC_ConnectorFriction::TypeId(), 836, 1022, &Upgrade_kbeC_ConnectorFriction_836) {}
void* Upgrade_kbeC_ConnectorFriction_836(const dbc_Row&, dbc_Row& newRow, int) {
  SetNull(newRow, "tangentialBehavior");
  return nullptr;
}

// --- table options: before 1125 they did not defer to the owning behavior -----------------------

kbeC_ConnectorOptions_1022::kbeC_ConnectorOptions_1022()
    : kbeC_OldVersion("kbeC_ConnectorOptions", kbeC_ConnectorOptions::TypeId(), 1022, 1125, &Upgrade_kbeC_ConnectorOptions_1022) {}
// The stored settings were the ones in force: keep them rather than defer to the behavior's.
void* Upgrade_kbeC_ConnectorOptions_1022(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("useBehRegSettings", -1), false);
  newRow.SetBool(rfm_FieldHandle("useBehExtSettings", -1), false);
  return nullptr;
}

// --- plasticity: table options of the hardening tables came with 836 -----------------------------

kbeC_ConnectorPlasticity_811::kbeC_ConnectorPlasticity_811()
    : kbeC_OldVersion("kbeC_ConnectorPlasticity", kbeC_ConnectorPlasticity::TypeId(), 811, 836,
                      &Upgrade_kbeC_ConnectorPlasticity_811) {}
void* Upgrade_kbeC_ConnectorPlasticity_811(const dbc_Row&, dbc_Row& newRow, int) {
  SetNull(newRow, "isotropicOptions");
  SetNull(newRow, "kinematicOptions");
  return nullptr;
}

// --- potentials: derived components came with 836 -------------------------------------------------

kbeC_ConnectorPotential_811::kbeC_ConnectorPotential_811()
    : kbeC_OldVersion("kbeC_ConnectorPotential", kbeC_ConnectorPotential::TypeId(), 811, 836,
                      &Upgrade_kbeC_ConnectorPotential_811) {}
void* Upgrade_kbeC_ConnectorPotential_811(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("componentStyle", -1), "COMPONENT_NUMBER");
  SetNull(newRow, "derivedComponent");
  return nullptr;
}

// --- derived-component terms: table options came with 1022 -----------------------------------

kbeC_CDCTerm_836::kbeC_CDCTerm_836()
    : kbeC_OldVersion("kbeC_CDCTerm", kbeC_CDCTerm::TypeId(), 836, 1022, &Upgrade_kbeC_CDCTerm_836) {}
void* Upgrade_kbeC_CDCTerm_836(const dbc_Row&, dbc_Row& newRow, int) {
  SetNull(newRow, "options");
  return nullptr;
}

// In the order of the module's list of retired layouts.
void kbeC_RegisterLegacyVersions(dbc_OldClassRegistrar& registrar) {
  auto add = [&](dbc_OldClassVersion* v) { registrar.Register(cow_CountedHld<dbc_OldClassVersion>(v), 5); };
  add(new kbeC_ConnectorDamage_811);
  add(new kbeC_ConnectorDamage_817);
  add(new kbeC_ConnectorDamping_1022);
  add(new kbeC_ConnectorDamping_811);
  add(new kbeC_ConnectorElasticity_811);
  add(new kbeC_ConnectorFriction_811);
  add(new kbeC_ConnectorFriction_836);
  add(new kbeC_ConnectorOptions_1022);
  add(new kbeC_ConnectorPlasticity_811);
  add(new kbeC_ConnectorPotential_811);
  add(new kbeC_Damage_453);
  add(new kbeC_Damage_507);
  add(new kbeC_Damping_453);
  add(new kbeC_Elasticity_453);
  add(new kbeC_Failure_453);
  add(new kbeC_Friction_453);
  add(new kbeC_Friction_507);
  add(new kbeC_Lock_453);
  add(new kbeC_MotionDiscontinuity_453);
  add(new kbeC_Plasticity_453);
  add(new kbeC_Plasticity_507);
  add(new kbeC_PotentialContainer_507);
  add(new kbeC_Potential_507);
  add(new kbeC_Stops_453);
  add(new kbeC_Tabular_453);
  add(new kbeC_CDCTerm_836);
  add(new kbeC_CDCTerm_1022);
  add(new kbeC_ConnectorBehaviorOption_453);
}
