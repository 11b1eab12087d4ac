#pragma once
// The rule's layout of database version 866, retired by version 1000, which added the cap on the
// number of elements ("elementCountLimit").
#include "platform/persist/dbc_Converter.h"

class karC_RemeshingRule_866 : public dbc_OldClassVersion {
 public:
  static constexpr int kVersion = 866;
  static constexpr int kRetiredBy = 1000;
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// A rule stored before the cap existed had none: it reads as "UNLIMITED".
void* Upgrade_karC_RemeshingRule_866(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
