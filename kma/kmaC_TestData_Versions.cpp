#include "kma/kmaC_TestData_Versions.h"

void* kmaC_TestData_Upgrade_203_850(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("lateralNominalStrain", -1), false);
  return nullptr;
}

void* kmaC_VolumetricTestData_Upgrade_203_324(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("volumetricResponse", -1), "VOLUMETRIC_DATA");
  return nullptr;
}

void* kmaC_VolumetricTestData_Upgrade_324_850(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("poissonRatio", -1), 0.0);
  return nullptr;
}
