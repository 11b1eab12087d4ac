#include "kma/kmaC_Plastic_Versions.h"

#include <limits>

void* Upgrade_kmaC_Plastic_203_419(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetInt(rfm_FieldHandle("properties", -1), 0);
  return nullptr;
}

void* Upgrade_kmaC_Plastic_419_1107(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("dataType", -1), "HALF_CYCLE");
  newRow.SetBool(rfm_FieldHandle("strainRangeDependency", -1), false);
  newRow.SetInt(rfm_FieldHandle("numBackstresses", -1), 1);
  return nullptr;
}

void* Upgrade_kmaC_Plastic_2002_2008(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("scaleStress", -1), std::numeric_limits<double>::max());
  newRow.SetBool(rfm_FieldHandle("staticRecovery", -1), false);
  return nullptr;
}

void* Upgrade_kmaC_Plastic_2008_2217(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("extrapolation", -1), "CONSTANT");
  return nullptr;
}
