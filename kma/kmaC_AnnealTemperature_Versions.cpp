#include "kma/kmaC_AnnealTemperature_Versions.h"

void* kmaC_AnnealTemperature_Upgrade_203_307(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetInt(rfm_FieldHandle("dependencies", -1), 0);
  return nullptr;
}

void* kmaC_AnnealTemperature_Upgrade_452_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("temperatureDependency", -1), false);
  return nullptr;
}
