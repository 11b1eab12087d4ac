#include "kma/kmaC_Expansion_Versions.h"

void* kmaC_Expansion_Upgrade_203_419(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("userSubroutine", -1), false);
  return nullptr;
}

void* kmaC_Expansion_Upgrade_419_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("zero", -1), 0.0);
  return nullptr;
}
