#include "kam/kamC_Amplitude_208.h"

#include "kam/kamC_Decay.h"
#include "kam/kamC_Modulated.h"
#include "kam/kamC_SolutionDependent.h"

// Rows are stored by their concrete class, so the root's step is declared for each kind whose
// rows carry the root's 208 layout.
void kamC_Amplitude_208::SchemaChanges(dbc_DatabaseConverter& converter) {
  dbc_Converter& step = converter.GetConverter(kRetiredBy);
  step.Upgrade(kamC_Modulated::kClassName, kamC_Modulated::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_Amplitude_208_424);
  step.Upgrade(kamC_Decay::kClassName, kamC_Decay::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_Amplitude_208_424);
  step.Upgrade(kamC_SolutionDependent::kClassName, kamC_SolutionDependent::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kamC_Amplitude_208_424);
}

void* Upgrade_kamC_Amplitude_208_424(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("timeSpan", -1), "STEP");
  return nullptr;
}
