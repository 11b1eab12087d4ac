#include "kop/kopC_TopologyTask_1554.h"

#include "kop/kopC_TopologyTask.h"

void kopC_TopologyTask_1554::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kopC_TopologyTask", kopC_TopologyTask::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kopC_TopologyTask_1554);
}

void* Upgrade_kopC_TopologyTask_1554(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("softDeletionMethod", -1), "STANDARD");
  newRow.SetDouble(rfm_FieldHandle("softDeletionThreshold", -1), 0.05);
  return nullptr;
}
