#include "kma/kmaC_ShearRetention_Versions.h"

void* kmaC_ShearRetention_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("type", -1), "RETENTION_FACTOR");
  return nullptr;
}
