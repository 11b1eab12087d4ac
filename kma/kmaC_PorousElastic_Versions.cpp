#include "kma/kmaC_PorousElastic_Versions.h"

void* kmaC_PorousElastic_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("shear", -1), "POISSON");
  return nullptr;
}
