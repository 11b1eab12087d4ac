#pragma once
// Electrical conductivity by the symmetry of the type, possibly frequency dependent.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_ElectricalConductivity : public fw_PersistentClass<kmaC_ElectricalConductivity, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { ISOTROPIC = 0, ORTHOTROPIC = 1, ANISOTROPIC = 2 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ISOTROPIC", 0}, {"ORTHOTROPIC", 1}, {"ANISOTROPIC", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_ElectricalConductivity";
  static constexpr const char* kScriptName = "ElectricalConductivity";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::ElectricalConductivity); }

  static constexpr auto Fields() {
    using C = kmaC_ElectricalConductivity;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"frequencyDependency", 1, "frequencyDependency", &C::frequencyDependency},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_ElectricalConductivity() = default;
  explicit kmaC_ElectricalConductivity(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String frequencyDependencyCmd() { return "frequencyDependency"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetFrequencyDependency() const { return frequencyDependency; }
  void SetFrequencyDependency(bool v) { frequencyDependency = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::ISOTROPIC;
  bool frequencyDependency = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_ElectricalConductivity, kmaC_MaterialOption>;
