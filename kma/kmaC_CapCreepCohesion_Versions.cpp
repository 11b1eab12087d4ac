#include "kma/kmaC_CapCreepCohesion_Versions.h"

void* Upgrade_kmaC_CapCreepCohesion_452_2008(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("time", -1), "TOTAL");
  return nullptr;
}
