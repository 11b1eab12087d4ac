#include "kma/kmaC_Hyperfoam_Versions.h"

void* kmaC_Hyperfoam_Upgrade_203_850(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("moduli", -1), "LONG_TERM");
  return nullptr;
}
