#include "kma/kmaC_ElectricalConductivity_Versions.h"

void* kmaC_ElectricalConductivity_Upgrade_203_2002(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("frequencyDependency", -1), false);
  return nullptr;
}
