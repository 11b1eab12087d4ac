#include "kma/kmaC_Viscous_Versions.h"

void* Upgrade_kmaC_Viscous_438_2008(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("law", -1), "STRAIN");
  return nullptr;
}
