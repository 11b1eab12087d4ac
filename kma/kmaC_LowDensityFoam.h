#pragma once
// Low-density foam from uniaxial test data, with optional element removal above a principal
// tensile stress.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_LowDensityFoam : public fw_PersistentClass<kmaC_LowDensityFoam, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_LowDensityFoam";
  static constexpr const char* kScriptName = "LowDensityFoam";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::LowDensityFoam); }

  static constexpr auto Fields() {
    using C = kmaC_LowDensityFoam;
    return std::tuple{
        fw_Field{"elementRemoval", 0, "elementRemoval", &C::elementRemoval},
        fw_Field{"maxAllowablePrincipalStress", 1, "maxAllowablePrincipalStress", &C::maxAllowablePrincipalStress},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_LowDensityFoam() = default;
  explicit kmaC_LowDensityFoam(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for low-density foam"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String elementRemovalCmd() { return "elementRemoval"; }
  static cow_String maxAllowablePrincipalStressCmd() { return "maxAllowablePrincipalStress"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetElementRemoval() const { return elementRemoval; }
  void SetElementRemoval(bool v) { elementRemoval = v; }
  double GetMaxAllowablePrincipalStress() const { return maxAllowablePrincipalStress; }
  void SetMaxAllowablePrincipalStress(double v) { maxAllowablePrincipalStress = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool elementRemoval = false;
  double maxAllowablePrincipalStress = 0.0;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_LowDensityFoam, kmaC_MaterialOption>;
