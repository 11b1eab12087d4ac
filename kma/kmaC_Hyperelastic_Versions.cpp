#include "kma/kmaC_Hyperelastic_Versions.h"

#include <vector>

void* kmaC_Hyperelastic_Upgrade_203_324(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("testData", -1), false);
  return nullptr;
}

void* kmaC_Hyperelastic_Upgrade_324_328(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetInt(rfm_FieldHandle("n", -1), 1);
  return nullptr;
}

void* kmaC_Hyperelastic_Upgrade_328_850(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("moduliTimeScale", -1), "LONG_TERM");
  return nullptr;
}

void* kmaC_Hyperelastic_Upgrade_850_864(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("materialType", -1), "ISOTROPIC");
  return nullptr;
}

void* kmaC_Hyperelastic_Upgrade_864_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("poissonRatio", -1), 0.0);
  newRow.SetString(rfm_FieldHandle("behaviorType", -1), "INCOMPRESSIBLE");
  for (const char* list : {"uniaxialTests", "biaxialTests", "planarTests", "volumetricTests"})
    newRow.Set(rfm_FieldHandle(list, -1), std::vector<cls_RecordPtr>());
  return nullptr;
}
