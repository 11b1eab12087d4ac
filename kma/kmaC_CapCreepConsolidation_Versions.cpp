#include "kma/kmaC_CapCreepConsolidation_Versions.h"

void* Upgrade_kmaC_CapCreepConsolidation_452_2008(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("time", -1), "TOTAL");
  return nullptr;
}
