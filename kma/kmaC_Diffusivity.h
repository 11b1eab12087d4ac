#pragma once
// Mass diffusivity by the symmetry of the type and the diffusion law.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Diffusivity : public fw_PersistentClass<kmaC_Diffusivity, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { ISOTROPIC = 0, ORTHOTROPIC = 1, ANISOTROPIC = 2 };
  enum class LawEnm : std::int32_t { GENERAL = 0, FICK = 1 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ISOTROPIC", 0}, {"ORTHOTROPIC", 1}, {"ANISOTROPIC", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  static constexpr omu_EnumLiteral kLawLiterals[] = {{"GENERAL", 0}, {"FICK", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LawEnm) { return kLawLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Diffusivity";
  static constexpr const char* kScriptName = "Diffusivity";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Diffusivity); }

  static constexpr auto Fields() {
    using C = kmaC_Diffusivity;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"law", 1, "law", &C::law},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_Diffusivity() = default;
  explicit kmaC_Diffusivity(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for diffusivity"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String lawCmd() { return "law"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  LawEnm GetLaw() const { return law; }
  void SetLaw(LawEnm v) { law = omu_PrimEnum<LawEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::ISOTROPIC;
  LawEnm law = LawEnm::GENERAL;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Diffusivity, kmaC_MaterialOption>;
