#include "kam/kamC_EquallySpaced_203.h"

#include "kam/kamC_Amplitude_208.h"
#include "kam/kamC_EquallySpaced.h"

void kamC_EquallySpaced_203::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade(kamC_EquallySpaced::kClassName, kamC_EquallySpaced::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_EquallySpaced_203_424);
}

void* Upgrade_kamC_EquallySpaced_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg) {
  Upgrade_kamC_Amplitude_208_424(oldRow, newRow, arg);
  newRow.SetDouble(rfm_FieldHandle("smooth", -1), kamC_kUnspecified);
  newRow.Set(rfm_FieldHandle("baselineCorrection", -1), std::monostate{});
  return nullptr;
}
