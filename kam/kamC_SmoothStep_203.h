#pragma once
// The smooth step amplitude layout of database version 203, retired by version 424: the root had no time span yet;
// the points are stored as they were.
#include "platform/persist/dbc_Converter.h"

class kamC_SmoothStep_203 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 203;
  static constexpr int kRetiredBy = 424;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// Adds the time span STEP; the points are kept as stored.
void* Upgrade_kamC_SmoothStep_203_424(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
