#include "kma/kmaC_MagneticPermeability_Versions.h"

void* kmaC_MagneticPermeability_Upgrade_1628_1701(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("nonlinearBH", -1), false);
  return nullptr;
}
