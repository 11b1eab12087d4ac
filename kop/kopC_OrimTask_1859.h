#pragma once
// The kopC_OrimTask layout of database version 1859, retired by version 2204.
#include "platform/persist/dbc_Converter.h"

class kopC_OrimTask_1859 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 1859;
  static constexpr int kRetiredBy = 2204;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// The new field "groupOperator", false.
void* Upgrade_kopC_OrimTask_1859(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
