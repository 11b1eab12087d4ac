#include "kfd/kfdC_FieldVersions.h"

#include <variant>

#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_MappedField.h"

namespace {
rfm_FieldHandle Field(const char* name) { return rfm_FieldHandle(name, -1); }

template <class C>
void Step(dbc_DatabaseConverter& converter, int from, int to, dbc_ConversionFn fn) {
  converter.GetConverter(to).Upgrade(C::kClassName, C::TypeId(), from).BindConversionFunction(fn);
}

// 1632 introduced the switch that turns coordinate scaling on; rows from before it map unscaled.
void* Upgrade_kfdC_MappedField_1632(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(Field("scaleCoordinates"), false);
  return nullptr;
}
}  // namespace

void kfdC_ExpressionField_700::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_ExpressionField>(c, 700, 810, &Upgrade_kfdC_AnalyticalField_810);
}
void kfdC_DiscreteField_1000::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_DiscreteField>(c, 1000, 1027, &Upgrade_kfdC_DiscreteField_1027);
}
void kfdC_DiscreteField_1027::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_DiscreteField>(c, 1027, 1029, &Upgrade_kfdC_DiscreteField_1029);
}
void kfdC_DiscreteField_1029::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_DiscreteField>(c, 1029, 1042, &Upgrade_kfdC_DiscreteField_1042);
}
void kfdC_DiscreteField_1042::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_DiscreteField>(c, 1042, 1104, &Upgrade_kfdC_DiscreteField_1104);
}
void kfdC_MappedField_1500::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1500, 1505, &Upgrade_kfdC_MappedField_1505);
}
void kfdC_MappedField_1505::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1505, 1509, &Upgrade_kfdC_MappedField_1509);
}
void kfdC_MappedField_1509::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1509, 1526, &Upgrade_kfdC_MappedField_1526);
}
void kfdC_MappedField_1526::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1526, 1571, &Upgrade_kfdC_MappedField_1571);
}
void kfdC_MappedField_1571::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1571, 1589, &Upgrade_kfdC_MappedField_1589);
}
void kfdC_MappedField_1589::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1589, 1592, &Upgrade_kfdC_MappedField_1592);
}
void kfdC_MappedField_1592::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1592, 1632, &Upgrade_kfdC_MappedField_1632);
}
void kfdC_MappedField_1632::SchemaChanges(dbc_DatabaseConverter& c) {
  Step<kfdC_MappedField>(c, 1632, 2302, &Upgrade_kfdC_MappedField_1632_2302);
}

// The coordinate system of older fields always belonged to the assembly.
void* Upgrade_kfdC_AnalyticalField_810(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(Field("csysPartName"), "");
  return nullptr;
}

// Older discrete fields were all scalar fields.
void* Upgrade_kfdC_DiscreteField_1027(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(Field("fieldType"), "SCALAR");
  return nullptr;
}

void* Upgrade_kfdC_DiscreteField_1029(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(Field("orientationType"), "RECTANGULAR");
  return nullptr;
}

void* Upgrade_kfdC_DiscreteField_1042(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(Field("partLevelOrientation"), false);
  return nullptr;
}

void* Upgrade_kfdC_DiscreteField_1104(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(Field("analyticFieldName"), "");
  return nullptr;
}

void* Upgrade_kfdC_MappedField_1505(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(Field("isPartLevelData"), false);
  return nullptr;
}

void* Upgrade_kfdC_MappedField_1509(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(Field("gridPointPlane"), "PLANE12");
  return nullptr;
}

void* Upgrade_kfdC_MappedField_1526(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetInt(Field("mappingAlgorithm"), 0);
  return nullptr;
}

// Tolerances became settable in 1571; older rows keep what the mapper used then: relative
// tolerances at today's defaults.
void* Upgrade_kfdC_MappedField_1571(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetBool(Field("isRelTol"), true);
  newRow.SetDouble(Field("boundarySearchTol"), 0.05);
  newRow.SetDouble(Field("neighborSearchTol"), 1.0);
  newRow.SetDouble(Field("negNormalSearchTol"), 0.05);
  newRow.SetDouble(Field("posNormalSearchTol"), 0.05);
  return nullptr;
}

void* Upgrade_kfdC_MappedField_1589(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(Field("interpolationTol"), 0.05);
  return nullptr;
}

// Older mapped fields had no results source of their own.
void* Upgrade_kfdC_MappedField_1592(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.Set(Field("odbMeshRegion"), std::monostate{});
  return nullptr;
}

void* Upgrade_kfdC_MappedField_1632_2302(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetDouble(Field("coordScale1"), 1.0);
  newRow.SetDouble(Field("coordScale2"), 1.0);
  newRow.SetDouble(Field("coordScale3"), 1.0);
  return nullptr;
}
