#pragma once
// Retired layouts of the field classes. Each descriptor declares the step that carries rows stored
// at its version to the next layout; the converters are exported under their names (the number is
// the database version at which the row is converted).
#include "platform/persist/dbc_Converter.h"

// Expression fields before 810 had no part name for their coordinate system.
class kfdC_ExpressionField_700 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// Discrete fields: 1027 added the field type, 1029 the orientation type, 1042 the part-level
// orientation flag, 1104 the name of the analytical field the data came from.
class kfdC_DiscreteField_1000 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_DiscreteField_1027 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_DiscreteField_1029 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_DiscreteField_1042 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

// Mapped fields: 1505 added part-level data, 1509 the grid point plane, 1526 the mapping
// algorithm, 1571 the search tolerances and their type, 1589 the interpolation tolerance, 1592 the
// results source, 1632 the coordinate scaling switch and 2302 the three scaling factors.
class kfdC_MappedField_1500 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1505 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1509 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1526 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1571 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1589 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1592 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};
class kfdC_MappedField_1632 : public dbc_OldClassVersion {
 public:
  void SchemaChanges(dbc_DatabaseConverter& converter) override;
};

void* Upgrade_kfdC_AnalyticalField_810(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_DiscreteField_1027(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_DiscreteField_1029(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_DiscreteField_1042(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_DiscreteField_1104(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1505(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1509(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1526(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1571(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1589(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1592(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
void* Upgrade_kfdC_MappedField_1632_2302(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
