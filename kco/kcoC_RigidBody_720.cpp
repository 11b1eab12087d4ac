#include "kco/kcoC_RigidBody_720.h"

#include <string>

#include "kco/kcoC_RigidBody.h"

void kcoC_RigidBody_720::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kcoC_RigidBody", kcoC_RigidBody::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kcoC_RigidBody_720);
}

void* Upgrade_kcoC_RigidBody_720(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  static const char* const kNames[] = {"refPointRegion", "bodyRegion", "tieRegion", "pinRegion", "surfaceRegion"};
  for (int i = 0; i < 5; ++i) {
    const rfm_FieldHandle old(("region" + std::to_string(i + 1)).c_str(), -1);
    newRow.SetString(rfm_FieldHandle(kNames[i], -1), oldRow.GetString(old));
    newRow.Remove(old);
  }
  return nullptr;
}
