#pragma once
// Mean-field homogenization of a composite: the averaging scheme, the isotropization of the
// inclusions' response, the angle increment of the orientation integration and the names of the
// constituents (matrix and inclusions) in the model's constituent repository. The constituents are
// validated in that repository; this option checks only its own members.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "platform/base/cow_List.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_MeanFieldHomogenization : public fw_PersistentClass<kmaC_MeanFieldHomogenization, kmaC_MaterialOption> {
 public:
  enum class FormulationEnm : std::int32_t { MT = 0, INVERSED_MT = 1, BALANCED = 2, VOIGT = 3, REUSS = 4 };
  static constexpr omu_EnumLiteral kFormulationLiterals[] = {{"MT", 0}, {"INVERSED_MT", 1}, {"BALANCED", 2}, {"VOIGT", 3}, {"REUSS", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(FormulationEnm) { return kFormulationLiterals; }
  enum class IsotropizationEnm : std::int32_t { ALLISO = 0, EISO = 1, PISO = 2 };
  static constexpr omu_EnumLiteral kIsotropizationLiterals[] = {{"ALLISO", 0}, {"EISO", 1}, {"PISO", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(IsotropizationEnm) { return kIsotropizationLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_MeanFieldHomogenization";
  static constexpr const char* kScriptName = "MeanFieldHomogenization";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::MeanFieldHomogenization); }

  static constexpr auto Fields() {
    using C = kmaC_MeanFieldHomogenization;
    return std::tuple{
        fw_Field{"formulation", 0, "formulation", &C::formulation},
        fw_Field{"isotropization", 1, "isotropization", &C::isotropization},
        fw_Field{"uniformMatrixStrain", 2, "uniformMatrixStrain", &C::uniformMatrixStrain},
        fw_Field{"angleIncrement", 3, "angleIncrement", &C::angleIncrement},
        fw_Field{"constituents", 4, "constituents", &C::constituents},
        fw_Field{"temperatureDependency", 5, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 6, "dependencies", &C::dependencies},
    };
  }

  kmaC_MeanFieldHomogenization() = default;
  explicit kmaC_MeanFieldHomogenization(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String formulationCmd() { return "formulation"; }
  static cow_String isotropizationCmd() { return "isotropization"; }
  static cow_String uniformMatrixStrainCmd() { return "uniformMatrixStrain"; }
  static cow_String angleIncrementCmd() { return "angleIncrement"; }
  static cow_String constituentsCmd() { return "constituents"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String setValuesCmd() { return "setValues"; }

  FormulationEnm GetFormulation() const { return formulation; }
  void SetFormulation(FormulationEnm v) { formulation = omu_PrimEnum<FormulationEnm, 1>(v).GetValue(); }
  IsotropizationEnm GetIsotropization() const { return isotropization; }
  void SetIsotropization(IsotropizationEnm v) { isotropization = omu_PrimEnum<IsotropizationEnm, 1>(v).GetValue(); }
  bool GetUniformMatrixStrain() const { return uniformMatrixStrain; }
  void SetUniformMatrixStrain(bool v) { uniformMatrixStrain = v; }
  std::int32_t GetAngleIncrement() const { return angleIncrement; }
  void SetAngleIncrement(std::int32_t v) { angleIncrement = v; }
  const cow_List<cow_String>& GetConstituents() const { return constituents; }
  void SetConstituents(const cow_List<cow_String>& v) { constituents = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }

 private:
  FormulationEnm formulation = FormulationEnm::MT;
  IsotropizationEnm isotropization = IsotropizationEnm::ALLISO;
  bool uniformMatrixStrain = false;
  std::int32_t angleIncrement = 15;
  cow_List<cow_String> constituents;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
};

extern template class fw_PersistentClass<kmaC_MeanFieldHomogenization, kmaC_MaterialOption>;
