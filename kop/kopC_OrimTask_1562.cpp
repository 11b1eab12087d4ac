#include "kop/kopC_OrimTask_1562.h"

#include "kop/kopC_OrimTask.h"

void kopC_OrimTask_1562::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kopC_OrimTask_1562);
}

void* Upgrade_kopC_OrimTask_1562(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  const rfm_FieldHandle algorithm("algorithm", -1);
  if (oldRow.GetString(algorithm) == "STIFFNESS_OPTIMIZATION") newRow.SetString(algorithm, "CONDITION_BASED_OPTIMIZATION");
  return nullptr;
}
