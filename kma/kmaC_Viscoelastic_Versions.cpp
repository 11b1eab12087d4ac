#include "kma/kmaC_Viscoelastic_Versions.h"

void* kmaC_Viscoelastic_Upgrade_203_855(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("preload", -1), "NONE");
  return nullptr;
}

void* kmaC_Viscoelastic_Upgrade_855_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("type", -1), "ISOTROPIC");
  return nullptr;
}
