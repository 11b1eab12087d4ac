#pragma once
// Equation of state: the form, its data table and the detonation energy of explosives.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Eos : public fw_PersistentClass<kmaC_Eos, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { MIE_GRUNEISEN = 0, US_UP = 1, IDEAL_GAS = 2, TABULAR = 3, JWL = 4, IGNITION_AND_GROWTH = 5, P_ALPHA = 6, USER = 7 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"MIE_GRUNEISEN", 0}, {"US_UP", 1}, {"IDEAL_GAS", 2}, {"TABULAR", 3}, {"JWL", 4}, {"IGNITION_AND_GROWTH", 5}, {"P_ALPHA", 6}, {"USER", 7}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Eos";
  static constexpr const char* kScriptName = "Eos";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Eos); }

  static constexpr auto Fields() {
    using C = kmaC_Eos;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"detonationEnergy", 1, "detonationEnergy", &C::detonationEnergy},
        fw_Field{"solidTable", 2, "solidTable", &C::solidTable},
        fw_Field{"gasTable", 3, "gasTable", &C::gasTable},
        fw_Field{"temperatureDependency", 4, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 5, "dependencies", &C::dependencies},
        fw_Field{"table", 6, "table", &C::table},
        fw_Field{"eosShear", 7, "eosShear", &C::eosShear},
    };
  }

  kmaC_Eos() = default;
  explicit kmaC_Eos(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name in eos"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String detonationEnergyCmd() { return "detonationEnergy"; }
  static cow_String solidTableCmd() { return "solidTable"; }
  static cow_String gasTableCmd() { return "gasTable"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String eosShearCmd() { return "eosShear"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  double GetDetonationEnergy() const { return detonationEnergy; }
  void SetDetonationEnergy(double v) { detonationEnergy = v; }
  const kmaC_MaterialTable& GetSolidTable() const { return solidTable; }
  void SetSolidTable(const kmaC_MaterialTable& v) { solidTable = v; }
  const kmaC_MaterialTable& GetGasTable() const { return gasTable; }
  void SetGasTable(const kmaC_MaterialTable& v) { gasTable = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  const kmaC_MaterialOption* GetEosShear() const { return eosShear.ConstGet(); }
  void SetEosShear(const kmaC_MaterialOption& v) { eosShear.Set(v, "eosShear"); }
  void ClearEosShear() { eosShear.Clear(); }

 private:
  TypeEnm type = TypeEnm::MIE_GRUNEISEN;
  double detonationEnergy = 0.0;
  kmaC_MaterialTable solidTable;
  kmaC_MaterialTable gasTable;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::EosShear> eosShear;
};

extern template class fw_PersistentClass<kmaC_Eos, kmaC_MaterialOption>;
