#pragma once
// The kopC_OrimTask layout of database version 1554, retired by version 1562.
#include "platform/persist/dbc_Converter.h"

class kopC_OrimTask_1554 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 1554;
  static constexpr int kRetiredBy = 1562;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// "algorithm" "CONTROLLER_BASED" becomes "STIFFNESS_OPTIMIZATION" and "SENSITIVITY_BASED" becomes
// "GENERAL_OPTIMIZATION"; any other algorithm is kept.
void* Upgrade_kopC_OrimTask_1554(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
