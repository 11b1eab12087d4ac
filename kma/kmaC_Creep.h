#pragma once
// Creep: the law, its time measure and the data table; a user law reads no table.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Creep : public fw_PersistentClass<kmaC_Creep, kmaC_MaterialOption> {
 public:
  enum class LawEnm : std::int32_t { STRAIN = 0, TIME = 1, HYPERBOLIC_SINE = 2, USER = 3, ANAND = 4, DARVEAUX = 5, DOUBLE_POWER = 6, POWER_LAW = 7, TIME_POWER_LAW = 8 };
  enum class TimeEnm : std::int32_t { TOTAL = 0, CREEP = 1 };
  static constexpr omu_EnumLiteral kLawLiterals[] = {{"STRAIN", 0}, {"TIME", 1}, {"HYPERBOLIC_SINE", 2}, {"USER", 3}, {"ANAND", 4}, {"DARVEAUX", 5}, {"DOUBLE_POWER", 6}, {"POWER_LAW", 7}, {"TIME_POWER_LAW", 8}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LawEnm) { return kLawLiterals; }
  static constexpr omu_EnumLiteral kTimeLiterals[] = {{"TOTAL", 0}, {"CREEP", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TimeEnm) { return kTimeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Creep";
  static constexpr const char* kScriptName = "Creep";
  static constexpr int kVersion = 2008;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Creep); }

  static constexpr auto Fields() {
    using C = kmaC_Creep;
    return std::tuple{
        fw_Field{"law", 0, "law", &C::law},
        fw_Field{"time", 1, "time", &C::time},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_Creep() = default;
  explicit kmaC_Creep(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for creep"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String lawCmd() { return "law"; }
  static cow_String timeCmd() { return "time"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  LawEnm GetLaw() const { return law; }
  void SetLaw(LawEnm v) { law = omu_PrimEnum<LawEnm, 1>(v).GetValue(); }
  TimeEnm GetTime() const { return time; }
  void SetTime(TimeEnm v) { time = omu_PrimEnum<TimeEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  LawEnm law = LawEnm::STRAIN;
  TimeEnm time = TimeEnm::TOTAL;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Creep, kmaC_MaterialOption>;
