#include "kma/kmaC_DamageEvolution_Versions.h"

void* kmaC_DamageEvolution_Upgrade_869_883(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("modeMixRatio", -1), "ENERGY");
  newRow.SetString(rfm_FieldHandle("degradation", -1), "MAXIMUM");
  return nullptr;
}

void* Upgrade_kmaC_DamageEvolution_883_2305(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetInt(rfm_FieldHandle("failureIndex", -1), 1);
  return nullptr;
}
