#include "kop/kopC_OrimTask_1554.h"

#include "kop/kopC_OrimTask.h"

void kopC_OrimTask_1554::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kopC_OrimTask_1554);
}

void* Upgrade_kopC_OrimTask_1554(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  const rfm_FieldHandle algorithm("algorithm", -1);
  const cow_String old = oldRow.GetString(algorithm);
  if (old == "CONTROLLER_BASED") newRow.SetString(algorithm, "STIFFNESS_OPTIMIZATION");
  else if (old == "SENSITIVITY_BASED") newRow.SetString(algorithm, "GENERAL_OPTIMIZATION");
  return nullptr;
}
