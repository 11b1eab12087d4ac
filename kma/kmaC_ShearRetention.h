#pragma once
// Post-cracking shear retention of a brittle cracking material, given as retention factors over
// crack opening strain or as the parameters of a power law. Older files knew only retention
// factors; the kind joined the layout at 2002.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_ShearRetention : public fw_PersistentClass<kmaC_ShearRetention, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { RETENTION_FACTOR = 0, POWER_LAW = 1 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"RETENTION_FACTOR", 0}, {"POWER_LAW", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_ShearRetention";
  static constexpr const char* kScriptName = "ShearRetention";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::ShearRetention); }

  // Persistent fields in write order; type (3) was added at 2002.
  static constexpr auto Fields() {
    using C = kmaC_ShearRetention;
    return std::tuple{
        fw_Field{"type", 3, "type", &C::type},
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 1, "dependencies", &C::dependencies},
        fw_Field{"table", 2, "table", &C::table},
    };
  }

  kmaC_ShearRetention() = default;
  explicit kmaC_ShearRetention(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::RETENTION_FACTOR;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_ShearRetention, kmaC_MaterialOption>;
