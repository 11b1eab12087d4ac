#include "kad/kadC_AdptMeshCtrl_302.h"

#include "kad/kadC_AdptMeshCtrl.h"

void kadC_AdptMeshCtrl_302::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kadC_AdptMeshCtrl", kadC_AdptMeshCtrl::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kadC_AdptMeshCtrl_302);
}

void* Upgrade_kadC_AdptMeshCtrl_302(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  const rfm_FieldHandle algorithm("smoothingAlgorithm", -1);
  if (oldRow.GetString(algorithm) == "GEOMETRY_ENHANCED") newRow.SetString(algorithm, "ANALYSIS_PRODUCT_DEFAULT");
  return nullptr;
}
