#include "kma/kmaC_Permeability_Versions.h"

void* kmaC_Permeability_Upgrade_203_404(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("specificWeight", -1), 0.0);
  return nullptr;
}

void* kmaC_Permeability_Upgrade_404_1502(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("inertialDragCoefficient", -1), 0.142887);
  return nullptr;
}
