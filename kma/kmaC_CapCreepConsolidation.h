#pragma once
// Consolidation (volumetric) creep of a cap plasticity material: the law, its time measure and its
// data; a user law reads no table. The time measure joined the layout at 2008.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_CapCreepConsolidation : public fw_PersistentClass<kmaC_CapCreepConsolidation, kmaC_MaterialOption> {
 public:
  enum class LawEnm : std::int32_t { STRAIN = 0, TIME = 1, USER = 2, POWER_LAW = 3, TIME_POWER_LAW = 4 };
  static constexpr omu_EnumLiteral kLawLiterals[] = {{"STRAIN", 0}, {"TIME", 1}, {"USER", 2}, {"POWER_LAW", 3}, {"TIME_POWER_LAW", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LawEnm) { return kLawLiterals; }
  enum class TimeEnm : std::int32_t { TOTAL = 0, CREEP = 1 };
  static constexpr omu_EnumLiteral kTimeLiterals[] = {{"TOTAL", 0}, {"CREEP", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TimeEnm) { return kTimeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_CapCreepConsolidation";
  static constexpr const char* kScriptName = "CapCreepConsolidation";
  static constexpr int kVersion = 2008;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::CapCreepConsolidation); }

  // Persistent fields in write order; time (4) was added at 2008.
  static constexpr auto Fields() {
    using C = kmaC_CapCreepConsolidation;
    return std::tuple{
        fw_Field{"law", 0, "law", &C::law},
        fw_Field{"time", 4, "time", &C::time},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_CapCreepConsolidation() = default;
  explicit kmaC_CapCreepConsolidation(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

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

extern template class fw_PersistentClass<kmaC_CapCreepConsolidation, kmaC_MaterialOption>;
