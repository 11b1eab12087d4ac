#include "kma/kmaC_MohrCoulomb_Versions.h"

void* kmaC_MohrCoulomb_Upgrade_205_404(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("meridionalEccentricity", -1), 0.1);
  return nullptr;
}

void* kmaC_MohrCoulomb_Upgrade_404_1422(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("deviatoricEccentricity", -1), 1.0);
  return nullptr;
}

void* kmaC_MohrCoulomb_Upgrade_1422_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("useTensionCutoff", -1), false);
  return nullptr;
}
