#pragma once
// The control's layout of database version 829, retired by version 860, which added the
// original-configuration projection weight and the standard volumetric smoothing weight.
#include "platform/persist/dbc_Converter.h"

class kadC_AdptMeshCtrl_829 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 829;
  static constexpr int kRetiredBy = 860;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

void* Upgrade_kadC_AdptMeshCtrl_829(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
