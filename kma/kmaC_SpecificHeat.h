#pragma once
// kmaC_SpecificHeat: specific heat at constant volume or constant pressure, possibly temperature and field dependent.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_SpecificHeat : public fw_PersistentClass<kmaC_SpecificHeat, kmaC_MaterialOption> {
 public:
  enum class LawEnm : std::int32_t { CONSTANTVOLUME = 0, CONSTANTPRESSURE = 1 };
  static constexpr omu_EnumLiteral kLawLiterals[] = {{"CONSTANTVOLUME", 0}, {"CONSTANTPRESSURE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LawEnm) { return kLawLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_SpecificHeat";
  static constexpr const char* kScriptName = "SpecificHeat";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::SpecificHeat); }

  static constexpr auto Fields() {
    using C = kmaC_SpecificHeat;
    return std::tuple{
        fw_Field{"law", 0, "law", &C::law},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_SpecificHeat() = default;
  explicit kmaC_SpecificHeat(const cls_ReadVisitor& r);
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
  LawEnm law = LawEnm::CONSTANTVOLUME;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_SpecificHeat, kmaC_MaterialOption>;
