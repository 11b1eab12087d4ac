#pragma once
// Crush stress of a crushable material (a core or an energy absorber): the stress at which it
// crushes, with an optional velocity-factor sub-option for its rate dependence. The table holds the
// crush stress, plus one column for temperature when temperature-dependent and one per
// field-variable dependency.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"

class kmaC_CrushStress : public fw_PersistentClass<kmaC_CrushStress, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_CrushStress";
  static constexpr const char* kScriptName = "CrushStress";
  static constexpr int kVersion = 2218;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::CrushStress); }

  // Fields 0-2 date from 2210, the velocity factor (3) from 2218.
  static constexpr auto Fields() {
    using C = kmaC_CrushStress;
    return std::tuple{
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 1, "dependencies", &C::dependencies},
        fw_Field{"table", 2, "table", &C::table},
        fw_Field{"crushStressVelocityFactor", 3, "crushStressVelocityFactor", &C::crushStressVelocityFactor},
    };
  }

  kmaC_CrushStress() = default;
  explicit kmaC_CrushStress(const cls_ReadVisitor& r);
  // Dependencies (code 0), the table (code 23), then the velocity factor when present.
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String crushStressVelocityFactorCmd() { return "crushStressVelocityFactor"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  bool HasCrushStressVelocityFactor() const { return !crushStressVelocityFactor.IsNull(); }
  const kmaC_MaterialOption* GetCrushStressVelocityFactor() const { return crushStressVelocityFactor.ConstGet(); }
  void SetCrushStressVelocityFactor(const kmaC_MaterialOption& v) {
    crushStressVelocityFactor.Set(v, "crushStressVelocityFactor");
  }
  void ClearCrushStressVelocityFactor() { crushStressVelocityFactor.Clear(); }

 private:
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::CrushStressVelocityFactor> crushStressVelocityFactor;
};

extern template class fw_PersistentClass<kmaC_CrushStress, kmaC_MaterialOption>;
