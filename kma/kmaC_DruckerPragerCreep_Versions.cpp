#include "kma/kmaC_DruckerPragerCreep_Versions.h"

void* kmaC_DruckerPragerCreep_Upgrade_203_2008(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("time", -1), "TOTAL");
  return nullptr;
}
