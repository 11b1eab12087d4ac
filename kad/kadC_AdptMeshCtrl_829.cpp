#include "kad/kadC_AdptMeshCtrl_829.h"

#include "kad/kadC_AdptMeshCtrl.h"

void kadC_AdptMeshCtrl_829::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kadC_AdptMeshCtrl", kadC_AdptMeshCtrl::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kadC_AdptMeshCtrl_829);
}

void* Upgrade_kadC_AdptMeshCtrl_829(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(rfm_FieldHandle("originalConfigurationProjectionWeight", -1), 1.0);
  newRow.SetDouble(rfm_FieldHandle("standardVolumetricSmoothingWeight", -1), 0.0);
  return nullptr;
}
