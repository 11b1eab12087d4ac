#pragma once
// One particle kind of a porous electrode: its radius (blank until given), its data table (the
// open-circuit potential over the state of charge) and the solid-phase diffusion and electrical
// conduction of the particle as sub-options.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_OrLiteral.h"
#include <limits>

#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_ElectrodeParticle : public fw_PersistentClass<kmaC_ElectrodeParticle, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_ElectrodeParticle";
  static constexpr const char* kScriptName = "ElectrodeParticle";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::ElectrodeParticle); }

  static constexpr auto Fields() {
    using C = kmaC_ElectrodeParticle;
    return std::tuple{
        fw_Field{"radius", 0, "radius", &C::radius},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
        fw_Field{"diffusivity", 4, "diffusivity", &C::diffusivity},
        fw_Field{"electricalConductivity", 5, "electricalConductivity", &C::electricalConductivity},
    };
  }

  kmaC_ElectrodeParticle() = default;
  explicit kmaC_ElectrodeParticle(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for electrodeParticle"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String radiusCmd() { return "radius"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String diffusivityCmd() { return "diffusivity"; }
  static cow_String electricalConductivityCmd() { return "electricalConductivity"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetRadius() const { return radius; }
  void SetRadius(double v) { radius = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  const kmaC_MaterialOption* GetDiffusivity() const { return diffusivity.ConstGet(); }
  void SetDiffusivity(const kmaC_MaterialOption& v) { diffusivity.Set(v, "diffusivity"); }
  void ClearDiffusivity() { diffusivity.Clear(); }
  const kmaC_MaterialOption* GetElectricalConductivity() const { return electricalConductivity.ConstGet(); }
  void SetElectricalConductivity(const kmaC_MaterialOption& v) { electricalConductivity.Set(v, "electricalConductivity"); }
  void ClearElectricalConductivity() { electricalConductivity.Clear(); }

 private:
  fw_Unspecified radius = std::numeric_limits<double>::max();
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::Diffusivity> diffusivity;
  kmaC_OptionSlot<kmaC_OptionClass::ElectricalConductivity> electricalConductivity;
};

extern template class fw_PersistentClass<kmaC_ElectrodeParticle, kmaC_MaterialOption>;
