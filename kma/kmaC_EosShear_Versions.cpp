#include "kma/kmaC_EosShear_Versions.h"

void* kmaC_EosShear_Upgrade_203_1338(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("type", -1), "VISCOUS");
  return nullptr;
}
