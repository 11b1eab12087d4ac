#pragma once
// The classes of version 453 and 507 files, renamed to today's classes as they are read.
//
// Those files kept each behavior under an older name (kbeC_Damage, kbeC_Elasticity, ...) built on
// shared base rows: the option base (kbeC_ConnectorBehaviorOption at 453, holding the
// components), and for the limit behaviors the motion discontinuity (kbeC_MotionDiscontinuity,
// holding the limits), each reached through the row's "##BaseClassOID". Tables were rows of
// their own (kbeC_Tabular: temperature dependency, field dependencies and the data), potentials
// were gathered in a kbeC_PotentialContainer (operator, exponent, the kbeC_Potential rows), each
// referred to through "<field>#OID" and "<field>#ClassID". The renames build the rows of today's
// classes at version 811, from which their own upgrade steps carry them on.
#include "platform/persist/dbc_Converter.h"

// One descriptor per retired layout.
class kbeC_ConnectorBehaviorOption_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_MotionDiscontinuity_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Tabular_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_PotentialContainer_507 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Damage_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Damage_507 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Damping_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Elasticity_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Failure_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Friction_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Friction_507 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Lock_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Plasticity_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Plasticity_507 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Potential_507 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kbeC_Stops_453 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
// The layout of derived-component terms written at 1022: today's layout (see kbeC_Rename.cpp).
class kbeC_CDCTerm_1022 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// The conversions, exported under their names. The old row is the renamed class's row as stored;
// the new row starts empty and is filled in the layout of version 811.
void* rename_kbeC_Damage(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Damping(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Elasticity(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Failure(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Friction(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Lock(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Plasticity(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Potential(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* rename_kbeC_Stops(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
// A base row met on its own has no behavior to become: refused.
void* Upgrade_kbeC_ConnectorBehaviorOption_453(const dbc_Row& oldRow, dbc_Row& newRow, int arg);

