#include "kar/karC_RemeshingRule_866.h"

#include "kar/karC_RemeshingRule.h"

void karC_RemeshingRule_866::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("karC_RemeshingRule", karC_RemeshingRule::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_karC_RemeshingRule_866);
}

void* Upgrade_karC_RemeshingRule_866(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetInt(rfm_FieldHandle("elementCountLimit", -1), 2147483647);
  return nullptr;
}
