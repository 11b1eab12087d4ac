#pragma once
// Modified Drucker-Prager cap plasticity: cohesion, friction angle, cap eccentricity, initial
// yield surface position, transition parameter and flow stress ratio per row.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"

class kmaC_CapPlasticity : public fw_PersistentClass<kmaC_CapPlasticity, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_CapPlasticity";
  static constexpr const char* kScriptName = "CapPlasticity";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::CapPlasticity); }

  static constexpr auto Fields() {
    using C = kmaC_CapPlasticity;
    return std::tuple{
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 1, "dependencies", &C::dependencies},
        fw_Field{"table", 2, "table", &C::table},
        fw_Field{"capCreepCohesion", 3, "capCreepCohesion", &C::capCreepCohesion},
        fw_Field{"capCreepConsolidation", 4, "capCreepConsolidation", &C::capCreepConsolidation},
        fw_Field{"capCreep", 5, "capCreep", &C::capCreep},
    };
  }

  kmaC_CapPlasticity() = default;
  explicit kmaC_CapPlasticity(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for cap plasticity"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String capCreepCohesionCmd() { return "capCreepCohesion"; }
  static cow_String capCreepConsolidationCmd() { return "capCreepConsolidation"; }
  static cow_String capCreepCmd() { return "capCreep"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  const kmaC_MaterialOption* GetCapCreepCohesion() const { return capCreepCohesion.ConstGet(); }
  void SetCapCreepCohesion(const kmaC_MaterialOption& v) { capCreepCohesion.Set(v, "capCreepCohesion"); }
  void ClearCapCreepCohesion() { capCreepCohesion.Clear(); }
  const kmaC_MaterialOption* GetCapCreepConsolidation() const { return capCreepConsolidation.ConstGet(); }
  void SetCapCreepConsolidation(const kmaC_MaterialOption& v) { capCreepConsolidation.Set(v, "capCreepConsolidation"); }
  void ClearCapCreepConsolidation() { capCreepConsolidation.Clear(); }
  const kmaC_MaterialOption* GetCapCreep() const { return capCreep.ConstGet(); }
  void SetCapCreep(const kmaC_MaterialOption& v) { capCreep.Set(v, "capCreep"); }
  void ClearCapCreep() { capCreep.Clear(); }

 private:
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::CapCreepCohesion> capCreepCohesion;
  kmaC_OptionSlot<kmaC_OptionClass::CapCreepConsolidation> capCreepConsolidation;
  kmaC_OptionSlot<kmaC_OptionClass::CapCreep> capCreep;
};

extern template class fw_PersistentClass<kmaC_CapPlasticity, kmaC_MaterialOption>;
