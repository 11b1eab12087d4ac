#include "kma/kmaC_BrittleCracking_Versions.h"

void* kmaC_BrittleCracking_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("type", -1), "STRESS");
  return nullptr;
}
