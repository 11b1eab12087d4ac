#include "kma/kmaC_UserMaterial_Versions.h"

void* kmaC_UserMaterial_Upgrade_203_419(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("unsymm", -1), false);
  return nullptr;
}

void* kmaC_UserMaterial_Upgrade_419_451(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("effmod", -1), false);
  return nullptr;
}

void* kmaC_UserMaterial_Upgrade_451_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("hybridFormulation", -1), "INCOMPRESSIBLE");
  return nullptr;
}
