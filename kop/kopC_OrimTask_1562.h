#pragma once
// The kopC_OrimTask layout of database version 1562, retired by version 1629.
#include "platform/persist/dbc_Converter.h"

class kopC_OrimTask_1562 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 1562;
  static constexpr int kRetiredBy = 1629;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// "algorithm" "STIFFNESS_OPTIMIZATION" becomes "CONDITION_BASED_OPTIMIZATION"; any other is kept.
void* Upgrade_kopC_OrimTask_1562(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
