#include "kma/kmaC_CrushStress_Versions.h"

void* Upgrade_kmaC_CrushStress_2210_2218(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.Set(rfm_FieldHandle("crushStressVelocityFactor", -1), std::monostate{});
  return nullptr;
}
