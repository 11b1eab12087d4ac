#include "kop/kopC_OrimTask_1859.h"

#include "kop/kopC_OrimTask.h"

void kopC_OrimTask_1859::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kopC_OrimTask_1859);
}

void* Upgrade_kopC_OrimTask_1859(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(rfm_FieldHandle("groupOperator", -1), false);
  return nullptr;
}
