#pragma once
// Linear elastic behavior: the symmetry of the data, the data table, its dependencies, and the
// optional fail-stress and fail-strain limits.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_FailStrain.h"
#include "kma/kmaC_FailStress.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Elastic : public fw_PersistentClass<kmaC_Elastic, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t {
    ISOTROPIC = 0,
    ORTHOTROPIC = 1,
    ANISOTROPIC = 2,
    ENGINEERING_CONSTANTS = 3,
    LAMINA = 4,
    TRACTION = 5,
    COUPLED_TRACTION = 6,
    SHORT_FIBER = 7,
    SHEAR = 8,
    BILAMINA = 9,
    TRANSVERSELY_ISOTROPIC = 10,
  };
  enum class ModuliEnm : std::int32_t { INSTANTANEOUS = 0, LONG_TERM = 1 };

  static constexpr omu_EnumLiteral kTypeLiterals[] = {
      {"ISOTROPIC", 0}, {"ORTHOTROPIC", 1}, {"ANISOTROPIC", 2}, {"ENGINEERING_CONSTANTS", 3},
      {"LAMINA", 4},    {"TRACTION", 5},    {"COUPLED_TRACTION", 6}, {"SHORT_FIBER", 7},
      {"SHEAR", 8},     {"BILAMINA", 9},    {"TRANSVERSELY_ISOTROPIC", 10}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kModuliLiterals[] = {{"INSTANTANEOUS", 0}, {"LONG_TERM", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ModuliEnm) { return kModuliLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Elastic";
  static constexpr const char* kScriptName = "Elastic";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Elastic); }

  static constexpr auto Fields() {
    using C = kmaC_Elastic;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"noCompression", 1, "noCompression", &C::noCompression},
        fw_Field{"noTension", 2, "noTension", &C::noTension},
        fw_Field{"temperatureDependency", 3, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 4, "dependencies", &C::dependencies},
        fw_Field{"moduli", 5, "moduli", &C::moduli},
        fw_Field{"table", 6, "table", &C::table},
        fw_Field{"failStress", 7, "failStress", &C::failStress},
        fw_Field{"failStrain", 8, "failStrain", &C::failStrain},
    };
  }

  kmaC_Elastic() = default;
  explicit kmaC_Elastic(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for elastic"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String noCompressionCmd() { return "noCompression"; }
  static cow_String noTensionCmd() { return "noTension"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String moduliCmd() { return "moduli"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String failStressCmd() { return "failStress"; }
  static cow_String failStrainCmd() { return "failStrain"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetNoCompression() const { return noCompression; }
  void SetNoCompression(bool v) { noCompression = v; }
  bool GetNoTension() const { return noTension; }
  void SetNoTension(bool v) { noTension = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  ModuliEnm GetModuli() const { return moduli; }
  void SetModuli(ModuliEnm v) { moduli = omu_PrimEnum<ModuliEnm, 1>(v).GetValue(); }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

  bool HasFailStress() const { return !failStress.IsNull(); }
  // Throws when absent.
  const kmaC_FailStress& GetFailStress() const;
  void SetFailStress(const kmaC_FailStress& v) { failStress.Set(v, "failStress"); }
  void ClearFailStress() { failStress.Clear(); }
  bool HasFailStrain() const { return !failStrain.IsNull(); }
  const kmaC_FailStrain& GetFailStrain() const;
  void SetFailStrain(const kmaC_FailStrain& v) { failStrain.Set(v, "failStrain"); }
  void ClearFailStrain() { failStrain.Clear(); }

 private:
  TypeEnm type = TypeEnm::ISOTROPIC;
  bool noCompression = false;
  bool noTension = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  // The second literal on purpose: data written without a choice are long-term moduli.
  ModuliEnm moduli = ModuliEnm::LONG_TERM;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::FailStress> failStress;
  kmaC_OptionSlot<kmaC_OptionClass::FailStrain> failStrain;
};

extern template class fw_PersistentClass<kmaC_Elastic, kmaC_MaterialOption>;
