#pragma once
// The rigid body's layout of database version 720, retired by version 840: the reference point,
// body, tie, pin and surface regions stored as "region1" to "region5".
#include "platform/persist/dbc_Converter.h"

class kcoC_RigidBody_720 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 720;
  static constexpr int kRetiredBy = 840;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// "region1" to "region5" become "refPointRegion", "bodyRegion", "tieRegion", "pinRegion" and
// "surfaceRegion".
void* Upgrade_kcoC_RigidBody_720(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
