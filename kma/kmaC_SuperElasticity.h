#pragma once
// Superelastic shape memory alloy behavior: transformation stresses and strains.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_SuperElasticity : public fw_PersistentClass<kmaC_SuperElasticity, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_SuperElasticity";
  static constexpr const char* kScriptName = "SuperElasticity";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::SuperElasticity); }

  static constexpr auto Fields() {
    using C = kmaC_SuperElasticity;
    return std::tuple{
        fw_Field{"nonassociated", 0, "nonassociated", &C::nonassociated},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_SuperElasticity() = default;
  explicit kmaC_SuperElasticity(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String nonassociatedCmd() { return "nonassociated"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetNonassociated() const { return nonassociated; }
  void SetNonassociated(bool v) { nonassociated = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool nonassociated = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_SuperElasticity, kmaC_MaterialOption>;
