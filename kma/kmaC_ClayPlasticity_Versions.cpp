#include "kma/kmaC_ClayPlasticity_Versions.h"

void* kmaC_ClayPlasticity_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("hardening", -1), "EXPONENTIAL");
  return nullptr;
}
