#pragma once
// Gurson porous metal plasticity: the relative density and the yield parameters.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_PorousMetalPlasticity : public fw_PersistentClass<kmaC_PorousMetalPlasticity, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_PorousMetalPlasticity";
  static constexpr const char* kScriptName = "PorousMetalPlasticity";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::PorousMetalPlasticity); }

  static constexpr auto Fields() {
    using C = kmaC_PorousMetalPlasticity;
    return std::tuple{
        fw_Field{"relativeDensity", 0, "relativeDensity", &C::relativeDensity},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_PorousMetalPlasticity() = default;
  explicit kmaC_PorousMetalPlasticity(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for porous metal plasticity"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String relativeDensityCmd() { return "relativeDensity"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetRelativeDensity() const { return relativeDensity; }
  void SetRelativeDensity(double v) { relativeDensity = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  double relativeDensity = 0.0;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_PorousMetalPlasticity, kmaC_MaterialOption>;
