#pragma once
// The amplitude layout of database version 208, retired by version 424: the root had no time
// span yet. The kinds that first appeared at 208 (modulated, decay, solution dependent) were
// stored in it; their own fields have not changed since.
#include "platform/persist/dbc_Converter.h"

class kamC_Amplitude_208 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 208;
  static constexpr int kRetiredBy = 424;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// Adds "timeSpan" = "STEP", the time span every amplitude had before it could be chosen.
void* Upgrade_kamC_Amplitude_208_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
