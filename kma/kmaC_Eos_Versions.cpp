#include "kma/kmaC_Eos_Versions.h"

void* kmaC_Eos_Upgrade_203_850(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("detonationEnergy", -1), 0.0);
  return nullptr;
}
