#include "kam/kamC_SmoothStep_203.h"

#include "kam/kamC_Amplitude_208.h"
#include "kam/kamC_SmoothStep.h"

void kamC_SmoothStep_203::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade(kamC_SmoothStep::kClassName, kamC_SmoothStep::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_SmoothStep_203_424);
}

void* Upgrade_kamC_SmoothStep_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg) {
  return Upgrade_kamC_Amplitude_208_424(oldRow, newRow, arg);
}
