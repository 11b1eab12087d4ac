#include "kco/kcoC_RigidBody_702.h"

#include <string>

#include "kco/kcoC_RigidBody.h"

void kcoC_RigidBody_702::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRetiredBy)
      .Upgrade("kcoC_RigidBody", kcoC_RigidBody::TypeId(), kVersion)
      .BindConversionFunction(&Upgrade_kcoC_RigidBody_702);
}

void* Upgrade_kcoC_RigidBody_702(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  // Read every old value before writing, since the names overlap.
  const rfm_FieldHandle refPt("refPtRegion", -1);
  cow_String values[5] = {oldRow.GetString(refPt)};
  for (int i = 1; i <= 4; ++i) values[i] = oldRow.GetString(rfm_FieldHandle(("region" + std::to_string(i)).c_str(), -1));
  newRow.Remove(refPt);
  for (int i = 0; i < 5; ++i) newRow.SetString(rfm_FieldHandle(("region" + std::to_string(i + 1)).c_str(), -1), values[i]);
  return nullptr;
}
