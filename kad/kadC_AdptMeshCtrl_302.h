#pragma once
// The control's layout of database version 302, retired by version 829.
#include "platform/persist/dbc_Converter.h"

class kadC_AdptMeshCtrl_302 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 302;
  static constexpr int kRetiredBy = 829;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// "GEOMETRY_ENHANCED" becomes "ANALYSIS_PRODUCT_DEFAULT"; any other algorithm is kept.
void* Upgrade_kadC_AdptMeshCtrl_302(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
