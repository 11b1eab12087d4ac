#pragma once
// The rigid body's layout of database version 702, retired by version 720: the reference point
// stored as "refPtRegion" and the body, tie, pin and surface regions as "region1" to "region4".
#include "platform/persist/dbc_Converter.h"

class kcoC_RigidBody_702 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 702;
  static constexpr int kRetiredBy = 720;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// The five regions take the numbered names of version 720: "refPtRegion" becomes "region1" and
// "region1" to "region4" move up one place.
void* Upgrade_kcoC_RigidBody_702(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
