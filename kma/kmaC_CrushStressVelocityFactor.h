#pragma once
// The rate dependence of a crush stress: a factor on the crush stress against the crushing
// velocity. The table holds (factor, velocity), plus one column for temperature when
// temperature-dependent and one per field-variable dependency.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_CrushStressVelocityFactor : public fw_PersistentClass<kmaC_CrushStressVelocityFactor, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_CrushStressVelocityFactor";
  static constexpr const char* kScriptName = "CrushStressVelocityFactor";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::CrushStressVelocityFactor); }

  static constexpr auto Fields() {
    using C = kmaC_CrushStressVelocityFactor;
    return std::tuple{
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 1, "dependencies", &C::dependencies},
        fw_Field{"table", 2, "table", &C::table},
    };
  }

  kmaC_CrushStressVelocityFactor() = default;
  explicit kmaC_CrushStressVelocityFactor(const cls_ReadVisitor& r);
  // Dependencies (code 0), then the table (code 23).
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_CrushStressVelocityFactor, kmaC_MaterialOption>;
