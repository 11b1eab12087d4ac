#include "kma/kmaC_SpecificHeat_Versions.h"

void* kmaC_SpecificHeat_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("law", -1), "CONSTANTVOLUME");
  return nullptr;
}
