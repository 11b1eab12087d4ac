#pragma once
// Thermal expansion: the coefficients for the symmetry of the type, the reference temperature
// (zero) and whether a user routine supplies the strains.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Expansion : public fw_PersistentClass<kmaC_Expansion, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { ISOTROPIC = 0, ORTHOTROPIC = 1, ANISOTROPIC = 2, SHORT_FIBER = 3 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ISOTROPIC", 0}, {"ORTHOTROPIC", 1}, {"ANISOTROPIC", 2}, {"SHORT_FIBER", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Expansion";
  static constexpr const char* kScriptName = "Expansion";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Expansion); }

  static constexpr auto Fields() {
    using C = kmaC_Expansion;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"userSubroutine", 1, "userSubroutine", &C::userSubroutine},
        fw_Field{"zero", 2, "zero", &C::zero},
        fw_Field{"temperatureDependency", 3, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 4, "dependencies", &C::dependencies},
        fw_Field{"table", 5, "table", &C::table},
    };
  }

  kmaC_Expansion() = default;
  explicit kmaC_Expansion(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String userSubroutineCmd() { return "userSubroutine"; }
  static cow_String zeroCmd() { return "zero"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetUserSubroutine() const { return userSubroutine; }
  void SetUserSubroutine(bool v) { userSubroutine = v; }
  double GetZero() const { return zero; }
  void SetZero(double v) { zero = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::ISOTROPIC;
  bool userSubroutine = false;
  double zero = 0.0;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Expansion, kmaC_MaterialOption>;
