#include "kma/kmaC_Damping_Versions.h"

void* kmaC_Damping_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("structural", -1), 0.0);
  return nullptr;
}
