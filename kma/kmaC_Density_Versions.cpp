#include "kma/kmaC_Density_Versions.h"

void* kmaC_Density_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("distributionType", -1), "UNIFORM");
  newRow.SetString(rfm_FieldHandle("fieldName", -1), "");
  return nullptr;
}
