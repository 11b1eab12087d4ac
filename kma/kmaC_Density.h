#pragma once
// Mass density of a material, uniform or given by a discrete field, possibly temperature and
// field dependent.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Density : public fw_PersistentClass<kmaC_Density, kmaC_MaterialOption> {
 public:
  enum class DistributionTypeEnm : std::int32_t { UNIFORM = 0, ANALYTICAL_FIELD = 1, DISCRETE_FIELD = 2 };
  static constexpr omu_EnumLiteral kDistributionTypeLiterals[] = {{"UNIFORM", 0}, {"ANALYTICAL_FIELD", 1}, {"DISCRETE_FIELD", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DistributionTypeEnm) { return kDistributionTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Density";
  static constexpr const char* kScriptName = "Density";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Density); }

  static constexpr auto Fields() {
    using C = kmaC_Density;
    return std::tuple{
        fw_Field{"distributionType", 0, "distributionType", &C::distributionType},
        fw_Field{"fieldName", 1, "fieldName", &C::fieldName},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_Density() = default;
  explicit kmaC_Density(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String distributionTypeCmd() { return "distributionType"; }
  static cow_String fieldNameCmd() { return "fieldName"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  DistributionTypeEnm GetDistributionType() const { return distributionType; }
  void SetDistributionType(DistributionTypeEnm v) { distributionType = omu_PrimEnum<DistributionTypeEnm, 1>(v).GetValue(); }
  const cow_String& GetFieldName() const { return fieldName; }
  void SetFieldName(const cow_String& v) { fieldName = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  DistributionTypeEnm distributionType = DistributionTypeEnm::UNIFORM;
  cow_String fieldName;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Density, kmaC_MaterialOption>;
