#pragma once
// The kopC_TopologyTask layout of database version 1554, retired by version 1629.
#include "platform/persist/dbc_Converter.h"

class kopC_TopologyTask_1554 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 1554;
  static constexpr int kRetiredBy = 1629;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// The soft-deletion method and threshold, new at 1629: the standard method with its threshold 0.05,
// which is what a task of the older layout used.
void* Upgrade_kopC_TopologyTask_1554(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
