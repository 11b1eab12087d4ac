#pragma once
// The equally spaced amplitude layout of database version 203, retired by version 424: neither the root's time span
// nor smoothing nor a baseline correction existed.
#include "platform/persist/dbc_Converter.h"

class kamC_EquallySpaced_203 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 203;
  static constexpr int kRetiredBy = 424;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// Adds the time span STEP, the solver's default smoothing and no baseline correction.
void* Upgrade_kamC_EquallySpaced_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
