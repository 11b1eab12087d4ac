#pragma once
// Damage of connector components: the initiation criterion and the evolution of damage, each
// optionally coupled through a potential.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_Values.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "kbe/kbeC_ConnectorOptions.h"
#include "kbe/kbeC_ConnectorPotential.h"

// Stored forms of the two potential operators of a damage behavior.
enum class kbeC_StoredInitiationOperatorEnm : std::int32_t { INITIATION_SUM = 0, INITIATION_MAXIMUM = 1 };
inline constexpr omu_EnumLiteral kbeC_kStoredInitiationOperatorLiterals[] = {{"INITIATION_SUM", 0}, {"INITIATION_MAXIMUM", 1}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kbeC_StoredInitiationOperatorEnm) { return kbeC_kStoredInitiationOperatorLiterals; }
enum class kbeC_StoredEvolutionOperatorEnm : std::int32_t { EVOLUTION_SUM = 0, EVOLUTION_MAXIMUM = 1 };
inline constexpr omu_EnumLiteral kbeC_kStoredEvolutionOperatorLiterals[] = {{"EVOLUTION_SUM", 0}, {"EVOLUTION_MAXIMUM", 1}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kbeC_StoredEvolutionOperatorEnm) { return kbeC_kStoredEvolutionOperatorLiterals; }

class kbeC_ConnectorDamage : public fw_PersistentClass<kbeC_ConnectorDamage, kbeC_ConnectorBehaviorOption> {
 public:
  using BaseClass = kbeC_ConnectorBehaviorOption;
  using RootClass = kbeC_ConnectorBehaviorOption;
  enum class CouplingEnm : std::int32_t { UNCOUPLED = 0, COUPLED = 1 };
  enum class CriterionEnm : std::int32_t { FORCE = 0, MOTION = 1, PLASTIC_MOTION = 2 };
  enum class EvolutionTypeEnm : std::int32_t { MOTION_TYPE = 0, ENERGY_TYPE = 1 };
  enum class SofteningEnm : std::int32_t { LINEAR = 0, EXPONENTIAL = 1, TABULAR = 2 };
  enum class DegradationEnm : std::int32_t { MAXIMUM = 0, MULTIPLICATIVE = 1 };
  enum class InitiationPotentialOperatorEnm : std::int32_t { SUM = 0, MAXIMUM = 1 };
  enum class EvolutionPotentialOperatorEnm : std::int32_t { SUM = 0, MAXIMUM = 1 };
  static constexpr omu_EnumLiteral kCouplingLiterals[] = {{"UNCOUPLED", 0}, {"COUPLED", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(CouplingEnm) { return kCouplingLiterals; }
  static constexpr omu_EnumLiteral kCriterionLiterals[] = {{"FORCE", 0}, {"MOTION", 1}, {"PLASTIC_MOTION", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(CriterionEnm) { return kCriterionLiterals; }
  static constexpr omu_EnumLiteral kEvolutionTypeLiterals[] = {{"MOTION_TYPE", 0}, {"ENERGY_TYPE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(EvolutionTypeEnm) { return kEvolutionTypeLiterals; }
  static constexpr omu_EnumLiteral kSofteningLiterals[] = {{"LINEAR", 0}, {"EXPONENTIAL", 1}, {"TABULAR", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SofteningEnm) { return kSofteningLiterals; }
  static constexpr omu_EnumLiteral kDegradationLiterals[] = {{"MAXIMUM", 0}, {"MULTIPLICATIVE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DegradationEnm) { return kDegradationLiterals; }
  static constexpr omu_EnumLiteral kInitiationPotentialOperatorLiterals[] = {{"SUM", 0}, {"MAXIMUM", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(InitiationPotentialOperatorEnm) { return kInitiationPotentialOperatorLiterals; }
  static constexpr omu_EnumLiteral kEvolutionPotentialOperatorLiterals[] = {{"SUM", 0}, {"MAXIMUM", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(EvolutionPotentialOperatorEnm) { return kEvolutionPotentialOperatorLiterals; }

  static constexpr const char* kClassName = "kbeC_ConnectorDamage";
  static constexpr const char* kScriptName = "ConnectorDamage";
  static constexpr int kVersion = 836;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 10); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_ConnectorDamage;
    return std::tuple{
        fw_Field{"components", 0, "components", &C::components},
        fw_Field{"coupling", 1, "coupling", &C::coupling},
        fw_Field{"criterion", 2, "criterion", &C::criterion},
        fw_Field{"initiationTemperature", 3, "initiationTemperature", &C::initiationTemperature},
        fw_Field{"iniPotOperator", 4, "initiationPotentialOperator", &C::initiationPotentialOperator},
        fw_Field{"iniPotExponent", 5, "initiationPotentialExponent", &C::initiationPotentialExponent},
        fw_Field{"initiationDependencies", 6, "initiationDependencies", &C::initiationDependencies},
        fw_Field{"initiationTable", 7, "initiationTable", &C::initiationTable},
        fw_Field{"initiationOptions", 8, "initiationOptions", &C::initiationOptions},
        fw_Field{"iniPotentials", 9, "initiationPotentials", &C::initiationPotentials},
        fw_Field{"lastIniId", 10, "lastIniId", &C::lastIniId},
        fw_Field{"evolution", 11, "evolution", &C::evolution},
        fw_Field{"evolutionType", 12, "evolutionType", &C::evolutionType},
        fw_Field{"softening", 13, "softening", &C::softening},
        fw_Field{"useAffected", 24, "useAffected", &C::useAffected},
        fw_Field{"affectedComponents", 25, "affectedComponents", &C::affectedComponents},
        fw_Field{"degradation", 26, "degradation", &C::degradation},
        fw_Field{"evolutionTemperature", 14, "evolutionTemperature", &C::evolutionTemperature},
        fw_Field{"evolutionDependencies", 15, "evolutionDependencies", &C::evolutionDependencies},
        fw_Field{"evoPotOperator", 16, "evolutionPotentialOperator", &C::evolutionPotentialOperator},
        fw_Field{"evoPotExponent", 17, "evolutionPotentialExponent", &C::evolutionPotentialExponent},
        fw_Field{"evolutionTable", 18, "evolutionTable", &C::evolutionTable},
        fw_Field{"evolutionOptions", 19, "evolutionOptions", &C::evolutionOptions},
        fw_Field{"evoPotentials", 20, "evolutionPotentials", &C::evolutionPotentials},
        fw_Field{"lastEvoId", 21, "lastEvoId", &C::lastEvoId},
    };
  }

  kbeC_ConnectorDamage() = default;
  explicit kbeC_ConnectorDamage(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  // Append a potential to one list and count it in that list's last-used potential id.
  void AppendInitiationPotential(const kbeC_ConnectorPotential& p);
  void AppendEvolutionPotential(const kbeC_ConnectorPotential& p);
  const cow_List<std::int32_t>& GetComponents() const { return components; }
  void SetComponents(const cow_List<std::int32_t>& v) { components = v; }
  CouplingEnm GetCoupling() const { return coupling; }
  void SetCoupling(CouplingEnm v) { coupling = v; }
  CriterionEnm GetCriterion() const { return criterion; }
  void SetCriterion(CriterionEnm v) { criterion = v; }
  bool GetInitiationTemperature() const { return initiationTemperature; }
  void SetInitiationTemperature(bool v) { initiationTemperature = v; }
  InitiationPotentialOperatorEnm GetInitiationPotentialOperator() const { return initiationPotentialOperator; }
  void SetInitiationPotentialOperator(InitiationPotentialOperatorEnm v) { initiationPotentialOperator = v; }
  double GetInitiationPotentialExponent() const { return initiationPotentialExponent; }
  void SetInitiationPotentialExponent(double v) { initiationPotentialExponent = v; }
  std::int32_t GetInitiationDependencies() const { return initiationDependencies; }
  void SetInitiationDependencies(std::int32_t v) { initiationDependencies = v; }
  const cow_2DArray<double>& GetInitiationTable() const { return initiationTable; }
  void SetInitiationTable(const cow_2DArray<double>& v) { initiationTable = v; }
  bool HasInitiationOptions() const { return !initiationOptions.IsNull(); }
  const kbeC_ConnectorOptions& GetInitiationOptions() const;
  kbeC_ConnectorOptions& ModifyInitiationOptions();
  void SetInitiationOptions(const kbeC_ConnectorOptions& v) { initiationOptions = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearInitiationOptions() { initiationOptions = cow_COW<kbeC_ConnectorOptions>(); }
  const cow_List<cow_COW<kbeC_ConnectorPotential>>& GetInitiationPotentials() const { return initiationPotentials; }
  cow_List<cow_COW<kbeC_ConnectorPotential>>& ModifyInitiationPotentials() { return initiationPotentials; }
  void SetInitiationPotentials(const cow_List<cow_COW<kbeC_ConnectorPotential>>& v) { initiationPotentials = v; }
  std::int32_t GetLastIniId() const { return lastIniId; }
  void SetLastIniId(std::int32_t v) { lastIniId = v; }
  bool GetEvolution() const { return evolution; }
  void SetEvolution(bool v) { evolution = v; }
  EvolutionTypeEnm GetEvolutionType() const { return evolutionType; }
  void SetEvolutionType(EvolutionTypeEnm v) { evolutionType = v; }
  SofteningEnm GetSoftening() const { return softening; }
  void SetSoftening(SofteningEnm v) { softening = v; }
  bool GetUseAffected() const { return useAffected; }
  void SetUseAffected(bool v) { useAffected = v; }
  const cow_List<std::int32_t>& GetAffectedComponents() const { return affectedComponents; }
  void SetAffectedComponents(const cow_List<std::int32_t>& v) { affectedComponents = v; }
  DegradationEnm GetDegradation() const { return degradation; }
  void SetDegradation(DegradationEnm v) { degradation = v; }
  bool GetEvolutionTemperature() const { return evolutionTemperature; }
  void SetEvolutionTemperature(bool v) { evolutionTemperature = v; }
  std::int32_t GetEvolutionDependencies() const { return evolutionDependencies; }
  void SetEvolutionDependencies(std::int32_t v) { evolutionDependencies = v; }
  EvolutionPotentialOperatorEnm GetEvolutionPotentialOperator() const { return evolutionPotentialOperator; }
  void SetEvolutionPotentialOperator(EvolutionPotentialOperatorEnm v) { evolutionPotentialOperator = v; }
  double GetEvolutionPotentialExponent() const { return evolutionPotentialExponent; }
  void SetEvolutionPotentialExponent(double v) { evolutionPotentialExponent = v; }
  const cow_2DArray<double>& GetEvolutionTable() const { return evolutionTable; }
  void SetEvolutionTable(const cow_2DArray<double>& v) { evolutionTable = v; }
  bool HasEvolutionOptions() const { return !evolutionOptions.IsNull(); }
  const kbeC_ConnectorOptions& GetEvolutionOptions() const;
  kbeC_ConnectorOptions& ModifyEvolutionOptions();
  void SetEvolutionOptions(const kbeC_ConnectorOptions& v) { evolutionOptions = cow_COW<kbeC_ConnectorOptions>(v); }
  void ClearEvolutionOptions() { evolutionOptions = cow_COW<kbeC_ConnectorOptions>(); }
  const cow_List<cow_COW<kbeC_ConnectorPotential>>& GetEvolutionPotentials() const { return evolutionPotentials; }
  cow_List<cow_COW<kbeC_ConnectorPotential>>& ModifyEvolutionPotentials() { return evolutionPotentials; }
  void SetEvolutionPotentials(const cow_List<cow_COW<kbeC_ConnectorPotential>>& v) { evolutionPotentials = v; }
  std::int32_t GetLastEvoId() const { return lastEvoId; }
  void SetLastEvoId(std::int32_t v) { lastEvoId = v; }

 private:
  cow_List<std::int32_t> components;
  CouplingEnm coupling = CouplingEnm::UNCOUPLED;
  CriterionEnm criterion = CriterionEnm::FORCE;
  bool initiationTemperature = false;
  kbeC_StoredEnum<InitiationPotentialOperatorEnm, kbeC_StoredInitiationOperatorEnm> initiationPotentialOperator = InitiationPotentialOperatorEnm::SUM;
  double initiationPotentialExponent = 2.0;
  std::int32_t initiationDependencies = 0;
  cow_2DArray<double> initiationTable;
  cow_COW<kbeC_ConnectorOptions> initiationOptions;
  cow_List<cow_COW<kbeC_ConnectorPotential>> initiationPotentials;
  std::int32_t lastIniId = 0;
  bool evolution = false;
  EvolutionTypeEnm evolutionType = EvolutionTypeEnm::MOTION_TYPE;
  SofteningEnm softening = SofteningEnm::LINEAR;
  bool useAffected = false;
  cow_List<std::int32_t> affectedComponents;
  DegradationEnm degradation = DegradationEnm::MAXIMUM;
  bool evolutionTemperature = false;
  std::int32_t evolutionDependencies = 0;
  kbeC_StoredEnum<EvolutionPotentialOperatorEnm, kbeC_StoredEvolutionOperatorEnm> evolutionPotentialOperator = EvolutionPotentialOperatorEnm::SUM;
  double evolutionPotentialExponent = 2.0;
  cow_2DArray<double> evolutionTable;
  cow_COW<kbeC_ConnectorOptions> evolutionOptions;
  cow_List<cow_COW<kbeC_ConnectorPotential>> evolutionPotentials;
  std::int32_t lastEvoId = 0;
};

extern template class fw_PersistentClass<kbeC_ConnectorDamage, kbeC_ConnectorBehaviorOption>;
