#pragma once
// Hypoelastic moduli against the first strain invariant, or from a user routine.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_Hypoelastic : public fw_PersistentClass<kmaC_Hypoelastic, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Hypoelastic";
  static constexpr const char* kScriptName = "Hypoelastic";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Hypoelastic); }

  static constexpr auto Fields() {
    using C = kmaC_Hypoelastic;
    return std::tuple{
        fw_Field{"user", 0, "user", &C::user},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_Hypoelastic() = default;
  explicit kmaC_Hypoelastic(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String userCmd() { return "user"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetUser() const { return user; }
  void SetUser(bool v) { user = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool user = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Hypoelastic, kmaC_MaterialOption>;
