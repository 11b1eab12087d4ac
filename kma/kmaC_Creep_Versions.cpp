#include "kma/kmaC_Creep_Versions.h"

void* Upgrade_kmaC_Creep_203_2008(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("time", -1), "TOTAL");
  return nullptr;
}
