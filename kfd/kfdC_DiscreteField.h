#pragma once
// A field given as data per node or per element. A scalar field has one value per label, an
// orientation field six (two direction vectors); a prescribed condition field has one value per label,
// or two (the degree of freedom and its value) when it acts on a degree of freedom, in which case its
// defaults give one value per degree of freedom (six). "analyticFieldName" names the analytical
// field the data was made from, if any.
#include <algorithm>
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kfd/kfdC_Field.h"
#include "framework/fw_Field.h"
#include "kfd/kfdC_DataTable.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"

class kfdC_DiscreteField : public fw_PersistentClass<kfdC_DiscreteField, kfdC_Field> {
 public:
  using BaseClass = kfdC_Field;
  using RootClass = kfdC_Field;
  enum class locationEnum : std::int32_t { NODES = 0, ELEMENTS = 1, INTEGRATION_POINT = 2, ELEMENT_NODES = 3 };
  static constexpr omu_EnumLiteral kLocationLiterals[] = {{"NODES", 0}, {"ELEMENTS", 1}, {"INTEGRATION_POINT", 2}, {"ELEMENT_NODES", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(locationEnum) { return kLocationLiterals; }
  enum class discreteFieldTypeEnum : std::int32_t { SCALAR = 0, ORIENTATION = 1, PRESCRIBEDCONDITION_DOF = 2 };
  static constexpr omu_EnumLiteral kFieldTypeLiterals[] = {{"SCALAR", 0}, {"ORIENTATION", 1}, {"PRESCRIBEDCONDITION_DOF", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(discreteFieldTypeEnum) { return kFieldTypeLiterals; }
  // The kind of local system an orientation field defines at each label.
  enum class OrientationTypeEnm : std::int32_t { RECTANGULAR = 0, CYLINDRICAL = 1, SPHERICAL = 2 };
  static constexpr omu_EnumLiteral kOrientationTypeLiterals[] = {{"RECTANGULAR", 0}, {"CYLINDRICAL", 1}, {"SPHERICAL", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(OrientationTypeEnm) { return kOrientationTypeLiterals; }
  static constexpr const char* kClassName = "kfdC_DiscreteField";
  static constexpr const char* kScriptName = "DiscreteField";
  static constexpr int kVersion = 1104;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 6); }
  // The constructor that makes the field from an analytical field.
  static constexpr const char* kFromAnalyticScriptName = "DiscreteFieldFromAnalytic";
  // Scripts construct the field under either name; the variant is given "analyticFieldName" and
  // "location" as FromAnalytic takes them.
  static constexpr const char* kScriptVariants[] = {kFromAnalyticScriptName};
  static const char* constructorCmd() { return kScriptName; }
  static const char* fromAnalyticCmd() { return kFromAnalyticScriptName; }
  // The degrees of freedom a prescribed condition field that acts on one gives defaults for.
  static constexpr std::size_t kDofCount = 6;

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kfdC_DiscreteField;
    return std::tuple{
        fw_Field{"location", 0, "location", &C::location},
        fw_Field{"fieldType", 3, "fieldType", &C::fieldType},
        fw_Field{"defaultValues", 1, "defaultValues", &C::defaultValues},
        fw_Field{"orientationType", 4, "orientationType", &C::orientationType},
        fw_Field{"partLevelOrientation", 5, "partLevelOrientation", &C::partLevelOrientation},
        fw_Field{"analyticFieldName", 6, "analyticFieldName", &C::analyticFieldName},
        fw_Field{"data", 2, "data", &C::dataTable},
    };
  }

  kfdC_DiscreteField() = default;
  explicit kfdC_DiscreteField(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  locationEnum GetLocation() const { return location; }
  void SetLocation(locationEnum v) { location = v; }
  discreteFieldTypeEnum GetFieldType() const { return fieldType; }
  void SetFieldType(discreteFieldTypeEnum v) { fieldType = v; }
  const cow_List<double>& GetDefaultValues() const { return defaultValues; }
  void SetDefaultValues(const cow_List<double>& v) { defaultValues = v; }
  OrientationTypeEnm GetOrientationType() const { return orientationType; }
  void SetOrientationType(OrientationTypeEnm v) { orientationType = v; }
  bool GetPartLevelOrientation() const { return partLevelOrientation; }
  void SetPartLevelOrientation(bool v) { partLevelOrientation = v; }
  const cow_String& GetAnalyticFieldName() const { return analyticFieldName; }
  void SetAnalyticFieldName(const cow_String& v) { analyticFieldName = v; }
  const kfdC_DataTable& GetData() const { return dataTable; }
  void SetData(const kfdC_DataTable& v) { dataTable = v; }
  kfdC_DataTable& ModifyData() { return dataTable; }
  // A field made from the analytical field of that name, with its data still to be computed.
  static kfdC_DiscreteField FromAnalytic(const cow_String& analyticalFieldName, locationEnum where);
  // Refuses a field that names part instances in its labels where it is applied to a part.
  void AssertPartLevelUse() const;

 private:
  locationEnum location = locationEnum::NODES;
  discreteFieldTypeEnum fieldType = discreteFieldTypeEnum::SCALAR;
  cow_List<double> defaultValues = {0.0};
  OrientationTypeEnm orientationType = OrientationTypeEnm::RECTANGULAR;
  bool partLevelOrientation = false;
  cow_String analyticFieldName;
  kfdC_DataTable dataTable;
};

extern template class fw_PersistentClass<kfdC_DiscreteField, kfdC_Field>;
