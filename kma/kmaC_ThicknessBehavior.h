#pragma once
// Gasket thickness-direction behavior: loading and unloading data in stress or force units.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_ThicknessBehavior : public fw_PersistentClass<kmaC_ThicknessBehavior, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { ELASTIC_PLASTIC = 0, DAMAGE = 1 };
  enum class UnitsEnm : std::int32_t { STRESS = 0, FORCE = 1 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ELASTIC_PLASTIC", 0}, {"DAMAGE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  static constexpr omu_EnumLiteral kUnitsLiterals[] = {{"STRESS", 0}, {"FORCE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(UnitsEnm) { return kUnitsLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_ThicknessBehavior";
  static constexpr const char* kScriptName = "ThicknessBehavior";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::ThicknessBehavior); }

  static constexpr auto Fields() {
    using C = kmaC_ThicknessBehavior;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"units", 1, "units", &C::units},
        fw_Field{"contactArea", 2, "contactArea", &C::contactArea},
        fw_Field{"tensileStiffnessFactor", 3, "tensileStiffnessFactor", &C::tensileStiffnessFactor},
        fw_Field{"temperatureDependency", 4, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 5, "dependencies", &C::dependencies},
        fw_Field{"table", 6, "table", &C::table},
    };
  }

  kmaC_ThicknessBehavior() = default;
  explicit kmaC_ThicknessBehavior(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for thickness behavior"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String unitsCmd() { return "units"; }
  static cow_String contactAreaCmd() { return "contactArea"; }
  static cow_String tensileStiffnessFactorCmd() { return "tensileStiffnessFactor"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  UnitsEnm GetUnits() const { return units; }
  void SetUnits(UnitsEnm v) { units = omu_PrimEnum<UnitsEnm, 1>(v).GetValue(); }
  double GetContactArea() const { return contactArea; }
  void SetContactArea(double v) { contactArea = v; }
  double GetTensileStiffnessFactor() const { return tensileStiffnessFactor; }
  void SetTensileStiffnessFactor(double v) { tensileStiffnessFactor = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::ELASTIC_PLASTIC;
  UnitsEnm units = UnitsEnm::STRESS;
  double contactArea = 0.0;
  double tensileStiffnessFactor = 0.001;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_ThicknessBehavior, kmaC_MaterialOption>;
