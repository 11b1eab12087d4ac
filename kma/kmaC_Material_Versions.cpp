#include "kma/kmaC_Material_Versions.h"

namespace {
void NoOption(dbc_Row& row, const char* slot) { row.Set(rfm_FieldHandle(slot, -1), std::monostate{}); }
}  // namespace

void* kmaC_Material_AddDescription(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("description", -1), "");
  return nullptr;
}

void* kmaC_Material_AddMaterialIdentifier(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("materialIdentifier", -1), "");
  return nullptr;
}

void* kmaC_Material_AddSoftRockPlasticity(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "softRockPlasticity");
  return nullptr;
}

void* kmaC_Material_AddSuperElasticity(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "superElasticity");
  return nullptr;
}

void* kmaC_Material_AddMeanFieldHomogenization(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "meanFieldHomogenization");
  return nullptr;
}

void* kmaC_Material_AddCrushStress(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "crushStress");
  return nullptr;
}

void* kmaC_Material_AddPlasticityCorrection(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "plasticityCorrection");
  return nullptr;
}

void* kmaC_Material_AddLaRC05DamageInitiation(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "laRC05DamageInitiation");
  return nullptr;
}

void* kmaC_Material_AddHosfordCoulombInitiation(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "hosfordCoulombDamageInitiation");
  return nullptr;
}

void* kmaC_Material_AddElectrochemistry(const dbc_Row&, dbc_Row& newRow, int) {
  NoOption(newRow, "electrolyte");
  NoOption(newRow, "electrode");
  return nullptr;
}
