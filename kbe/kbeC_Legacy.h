#pragma once
// The retired layouts of the connector behavior classes and the converters that carry their rows
// forward. Each descriptor is named by its class and the database version of its layout and
// declares one step to the next layout. Version 453 and 507 files kept the behaviors under older
// class names built on shared base rows; their descriptors rename them (see kbeC_Rename.h).
#include "platform/persist/dbc_Converter.h"

// One step of one class: rows stored at `from` move to `to` through `fn`.
class kbeC_OldVersion : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;

 protected:
  kbeC_OldVersion(const char* className, unsigned typeId, int from, int to, dbc_ConversionFn fn)
      : className_(className), typeId_(typeId), from_(from), to_(to), fn_(fn) {}

 private:
  const char* className_;
  unsigned typeId_;
  int from_;
  int to_;
  dbc_ConversionFn fn_;
};

// Each constructor, in kbeC_Legacy.cpp, names the step of its layout.
class kbeC_ConnectorDamage_811 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorDamage_811();
};
class kbeC_ConnectorDamage_817 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorDamage_817();
};
class kbeC_ConnectorDamping_811 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorDamping_811();
};
class kbeC_ConnectorDamping_1022 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorDamping_1022();
};
class kbeC_ConnectorElasticity_811 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorElasticity_811();
};
class kbeC_ConnectorFriction_811 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorFriction_811();
};
class kbeC_ConnectorFriction_836 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorFriction_836();
};
class kbeC_ConnectorOptions_1022 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorOptions_1022();
};
class kbeC_ConnectorPlasticity_811 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorPlasticity_811();
};
class kbeC_ConnectorPotential_811 : public kbeC_OldVersion {
 public:
  kbeC_ConnectorPotential_811();
};
class kbeC_CDCTerm_836 : public kbeC_OldVersion {
 public:
  kbeC_CDCTerm_836();
};

// The conversions, exported under their names.
void* Upgrade_kbeC_ConnectorDamage_811(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorDamage_817(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorDamping_811(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorDamping_1022(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorElasticity_811(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorFriction_811(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorFriction_836(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorOptions_1022(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorPlasticity_811(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_ConnectorPotential_811(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kbeC_CDCTerm_836(const dbc_Row& oldRow, dbc_Row& newRow, int arg);

// Registers every retired layout of the module with the old-class registrar (argument 5).
void kbeC_RegisterLegacyVersions(dbc_OldClassRegistrar& registrar);
