#include "kma/kmaC_DamageInitiation_Versions.h"

#include <vector>

void* Upgrade_kmaC_DamageInitiation_869_883(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("omega", -1), 1.0);
  return nullptr;
}

void* Upgrade_kmaC_DamageInitiation_883_1352(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("tolerance", -1), 0.05);
  newRow.SetInt(rfm_FieldHandle("numberImperfections", -1), 4);
  return nullptr;
}

void* Upgrade_kmaC_DamageInitiation_1390_1432(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("direction", -1), "NMORI");
  return nullptr;
}

void* Upgrade_kmaC_DamageInitiation_1432_1801(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("position", -1), "CENTROID");
  return nullptr;
}

void* Upgrade_kmaC_DamageInitiation_1801_2305(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("feq", -1), 10.0);
  newRow.SetDouble(rfm_FieldHandle("fnn", -1), 10.0);
  newRow.SetDouble(rfm_FieldHandle("fnt", -1), 10.0);
  newRow.SetInt(rfm_FieldHandle("frequency", -1), 1);
  newRow.Set(rfm_FieldHandle("DamageEvolutionList", -1), std::vector<cls_RecordPtr>());
  return nullptr;
}
