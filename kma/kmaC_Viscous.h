#pragma once
// Viscous behavior of a two-layer viscoplastic model: the law and its data.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Viscous : public fw_PersistentClass<kmaC_Viscous, kmaC_MaterialOption> {
 public:
  enum class LawEnm : std::int32_t { STRAIN = 0, TIME = 1, USER = 2, ANAND = 3, DARVEAUX = 4, DOUBLE_POWER = 5, POWER_LAW = 6, TIME_POWER_LAW = 7 };
  static constexpr omu_EnumLiteral kLawLiterals[] = {{"STRAIN", 0}, {"TIME", 1}, {"USER", 2}, {"ANAND", 3}, {"DARVEAUX", 4}, {"DOUBLE_POWER", 5}, {"POWER_LAW", 6}, {"TIME_POWER_LAW", 7}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LawEnm) { return kLawLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Viscous";
  static constexpr const char* kScriptName = "Viscous";
  static constexpr int kVersion = 2008;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Viscous); }

  static constexpr auto Fields() {
    using C = kmaC_Viscous;
    return std::tuple{
        fw_Field{"law", 0, "law", &C::law},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_Viscous() = default;
  explicit kmaC_Viscous(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String lawCmd() { return "law"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  LawEnm GetLaw() const { return law; }
  void SetLaw(LawEnm v) { law = omu_PrimEnum<LawEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  LawEnm law = LawEnm::STRAIN;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Viscous, kmaC_MaterialOption>;
