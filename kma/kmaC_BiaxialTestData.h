#pragma once
// Equibiaxial test data: measured nominal stress against nominal strain, for a Mullins effect (the
// unloading curves) or a hyperelastic or hyperfoam fit. `smoothing` is the number of points on each
// side of a point used to smooth the data (0: none); `lateralNominalStrain` adds the measured lateral
// strain as a third column, so the table width is 2 (3 with lateral strain), plus one column for
// temperature when temperature-dependent and one per field-variable dependency.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_BiaxialTestData : public fw_PersistentClass<kmaC_BiaxialTestData, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_BiaxialTestData";
  static constexpr const char* kScriptName = "BiaxialTestData";
  static constexpr int kVersion = 850;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::BiaxialTestData); }

  // Fields 0-3 date from 203, 4 from 850.
  static constexpr auto Fields() {
    using C = kmaC_BiaxialTestData;
    return std::tuple{
        fw_Field{"smoothing", 0, "smoothing", &C::smoothing},
        fw_Field{"lateralNominalStrain", 4, "lateralNominalStrain", &C::lateralNominalStrain},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_BiaxialTestData() = default;
  explicit kmaC_BiaxialTestData(const cls_ReadVisitor& r);
  // Dependencies (code 0), then the table's rows (code 23).
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String smoothingCmd() { return "smoothing"; }
  static cow_String lateralNominalStrainCmd() { return "lateralNominalStrain"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  std::int32_t GetSmoothing() const { return smoothing; }
  void SetSmoothing(std::int32_t v) { smoothing = v; }
  bool GetLateralNominalStrain() const { return lateralNominalStrain; }
  void SetLateralNominalStrain(bool v) { lateralNominalStrain = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  std::int32_t smoothing = 0;
  bool lateralNominalStrain = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_BiaxialTestData, kmaC_MaterialOption>;
