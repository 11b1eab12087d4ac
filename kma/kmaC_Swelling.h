#pragma once
// Volumetric swelling strain rate of a material.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_Swelling : public fw_PersistentClass<kmaC_Swelling, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Swelling";
  static constexpr const char* kScriptName = "Swelling";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Swelling); }

  static constexpr auto Fields() {
    using C = kmaC_Swelling;
    return std::tuple{
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 1, "dependencies", &C::dependencies},
        fw_Field{"table", 2, "table", &C::table},
    };
  }

  kmaC_Swelling() = default;
  explicit kmaC_Swelling(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for swelling"; }

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

extern template class fw_PersistentClass<kmaC_Swelling, kmaC_MaterialOption>;
