#include "kam/kamC_Periodic_203.h"

#include "kam/kamC_Amplitude_208.h"
#include "kam/kamC_Periodic.h"

void kamC_Periodic_203::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade(kamC_Periodic::kClassName, kamC_Periodic::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_Periodic_203_424);
}

void* Upgrade_kamC_Periodic_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg) {
  return Upgrade_kamC_Amplitude_208_424(oldRow, newRow, arg);
}
