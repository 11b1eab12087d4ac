#pragma once
// The kopC_OrimTask layout of database version 1629, retired by version 1859.
#include "platform/persist/dbc_Converter.h"

class kopC_OrimTask_1629 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 1629;
  static constexpr int kRetiredBy = 1859;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// The new field "tessarSensitivities", false.
void* Upgrade_kopC_OrimTask_1629(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
