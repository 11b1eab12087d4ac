#include "kma/kmaC_ThicknessBehavior_Versions.h"

void* kmaC_ThicknessBehavior_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("tensileStiffnessFactor", -1), 0.001);
  return nullptr;
}
