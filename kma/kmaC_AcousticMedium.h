#pragma once
// Acoustic medium: bulk modulus and volumetric drag of a fluid.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_AcousticMedium : public fw_PersistentClass<kmaC_AcousticMedium, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_AcousticMedium";
  static constexpr const char* kScriptName = "AcousticMedium";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::AcousticMedium); }

  static constexpr auto Fields() {
    using C = kmaC_AcousticMedium;
    return std::tuple{
        fw_Field{"bulkModulus", 0, "bulkModulus", &C::bulkModulus},
        fw_Field{"volumetricDrag", 1, "volumetricDrag", &C::volumetricDrag},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_AcousticMedium() = default;
  explicit kmaC_AcousticMedium(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String bulkModulusCmd() { return "bulkModulus"; }
  static cow_String volumetricDragCmd() { return "volumetricDrag"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetBulkModulus() const { return bulkModulus; }
  void SetBulkModulus(bool v) { bulkModulus = v; }
  bool GetVolumetricDrag() const { return volumetricDrag; }
  void SetVolumetricDrag(bool v) { volumetricDrag = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool bulkModulus = true;
  bool volumetricDrag = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_AcousticMedium, kmaC_MaterialOption>;
