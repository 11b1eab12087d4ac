#pragma once
// The periodic amplitude layout of database version 203, retired by version 424: the root had no time span yet;
// the Fourier series itself is stored as it was.
#include "platform/persist/dbc_Converter.h"

class kamC_Periodic_203 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 203;
  static constexpr int kRetiredBy = 424;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// Adds the time span STEP; the series is kept as stored.
void* Upgrade_kamC_Periodic_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
