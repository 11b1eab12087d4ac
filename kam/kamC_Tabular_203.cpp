#include "kam/kamC_Tabular_203.h"

#include "kam/kamC_Amplitude_208.h"
#include "kam/kamC_Tabular.h"

void kamC_Tabular_203::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade(kamC_Tabular::kClassName, kamC_Tabular::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_Tabular_203_424);
}

void* Upgrade_kamC_Tabular_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg) {
  Upgrade_kamC_Amplitude_208_424(oldRow, newRow, arg);
  newRow.SetDouble(rfm_FieldHandle("smooth", -1), kamC_kUnspecified);
  newRow.Set(rfm_FieldHandle("baselineCorrection", -1), std::monostate{});
  return nullptr;
}
