#pragma once
// Damage evolution after the onset of damage, an element of the damage-evolution list of a damage
// initiation: what drives it (effective displacement or fracture energy), the softening law, how
// mixed modes combine, how damage from several criteria combines, and which failure mode of a
// multi-mode criterion it belongs to (`failureIndex`, from 1). The table holds the displacement or
// energy at failure (with the damage variable, or the mode-mix ratio, per the choices), plus one
// column for temperature when temperature-dependent and one per field-variable dependency.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_DamageEvolution : public fw_PersistentClass<kmaC_DamageEvolution, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { DISPLACEMENT = 0, ENERGY = 1 };
  enum class SofteningEnm : std::int32_t { LINEAR = 0, EXPONENTIAL = 1, TABULAR = 2 };
  enum class MixedModeBehaviorEnm : std::int32_t { MODE_INDEPENDENT = 0, TABULAR = 1, POWER_LAW = 2, BK = 3 };
  enum class ModeMixRatioEnm : std::int32_t { ENERGY = 0, TRACTION = 1 };
  enum class DegradationEnm : std::int32_t { MAXIMUM = 0, MULTIPLICATIVE = 1 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"DISPLACEMENT", 0}, {"ENERGY", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  static constexpr omu_EnumLiteral kSofteningLiterals[] = {
      {"LINEAR", 0}, {"EXPONENTIAL", 1}, {"TABULAR", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SofteningEnm) { return kSofteningLiterals; }
  static constexpr omu_EnumLiteral kMixedModeBehaviorLiterals[] = {
      {"MODE_INDEPENDENT", 0}, {"TABULAR", 1}, {"POWER_LAW", 2}, {"BK", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MixedModeBehaviorEnm) { return kMixedModeBehaviorLiterals; }
  static constexpr omu_EnumLiteral kModeMixRatioLiterals[] = {{"ENERGY", 0}, {"TRACTION", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ModeMixRatioEnm) { return kModeMixRatioLiterals; }
  static constexpr omu_EnumLiteral kDegradationLiterals[] = {{"MAXIMUM", 0}, {"MULTIPLICATIVE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DegradationEnm) { return kDegradationLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_DamageEvolution";
  static constexpr const char* kScriptName = "DamageEvolution";
  static constexpr int kVersion = 2305;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::DamageEvolution); }

  // Fields 0-6 date from 869, 7-8 from 883, 9 from 2305.
  static constexpr auto Fields() {
    using C = kmaC_DamageEvolution;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"softening", 1, "softening", &C::softening},
        fw_Field{"mixedModeBehavior", 2, "mixedModeBehavior", &C::mixedModeBehavior},
        fw_Field{"modeMixRatio", 7, "modeMixRatio", &C::modeMixRatio},
        fw_Field{"power", 3, "power", &C::power},
        fw_Field{"degradation", 8, "degradation", &C::degradation},
        fw_Field{"failureIndex", 9, "failureIndex", &C::failureIndex},
        fw_Field{"temperatureDependency", 4, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 5, "dependencies", &C::dependencies},
        fw_Field{"table", 6, "table", &C::table},
    };
  }

  kmaC_DamageEvolution() = default;
  explicit kmaC_DamageEvolution(const cls_ReadVisitor& r);
  // Dependencies (code 0), the combination of type, softening and mixed-mode behavior (code 38),
  // then the table (code 23). The failure index is checked by the owning initiation, which knows
  // how many failure modes its criterion has.
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String softeningCmd() { return "softening"; }
  static cow_String mixedModeBehaviorCmd() { return "mixedModeBehavior"; }
  static cow_String modeMixRatioCmd() { return "modeMixRatio"; }
  static cow_String powerCmd() { return "power"; }
  static cow_String degradationCmd() { return "degradation"; }
  static cow_String failureIndexCmd() { return "failureIndex"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  SofteningEnm GetSoftening() const { return softening; }
  void SetSoftening(SofteningEnm v) { softening = omu_PrimEnum<SofteningEnm, 1>(v).GetValue(); }
  MixedModeBehaviorEnm GetMixedModeBehavior() const { return mixedModeBehavior; }
  void SetMixedModeBehavior(MixedModeBehaviorEnm v) {
    mixedModeBehavior = omu_PrimEnum<MixedModeBehaviorEnm, 1>(v).GetValue();
  }
  ModeMixRatioEnm GetModeMixRatio() const { return modeMixRatio; }
  void SetModeMixRatio(ModeMixRatioEnm v) { modeMixRatio = omu_PrimEnum<ModeMixRatioEnm, 1>(v).GetValue(); }
  double GetPower() const { return power; }
  void SetPower(double v) { power = v; }
  DegradationEnm GetDegradation() const { return degradation; }
  void SetDegradation(DegradationEnm v) { degradation = omu_PrimEnum<DegradationEnm, 1>(v).GetValue(); }
  std::int32_t GetFailureIndex() const { return failureIndex; }
  void SetFailureIndex(std::int32_t v) { failureIndex = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::DISPLACEMENT;
  SofteningEnm softening = SofteningEnm::LINEAR;
  MixedModeBehaviorEnm mixedModeBehavior = MixedModeBehaviorEnm::MODE_INDEPENDENT;
  ModeMixRatioEnm modeMixRatio = ModeMixRatioEnm::ENERGY;
  // The exponent of the power law; 1.0 is the linear interaction.
  double power = 1.0;
  DegradationEnm degradation = DegradationEnm::MAXIMUM;
  std::int32_t failureIndex = 1;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_DamageEvolution, kmaC_MaterialOption>;
