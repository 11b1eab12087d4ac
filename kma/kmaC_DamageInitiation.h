#pragma once
// Onset of damage by one criterion (the slot of the material names it): the criterion's data table,
// the forming-limit definition, the direction and position of evaluation and the numerical controls,
// and the list of damage evolutions that follow the onset (one per failure mode of the criterion).
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionListMember.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_DamageInitiation : public fw_PersistentClass<kmaC_DamageInitiation, kmaC_MaterialOption> {
 public:
  enum class DefinitionEnm : std::int32_t { MSFLD = 0, FLD = 1 };
  enum class DirectionEnm : std::int32_t { NMORI = 0, TMORI = 1 };
  enum class PositionEnm : std::int32_t { CENTROID = 0, NODES = 1, INTEGRATION_POINTS = 2 };
  static constexpr omu_EnumLiteral kDefinitionLiterals[] = {{"MSFLD", 0}, {"FLD", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DefinitionEnm) { return kDefinitionLiterals; }
  static constexpr omu_EnumLiteral kDirectionLiterals[] = {{"NMORI", 0}, {"TMORI", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DirectionEnm) { return kDirectionLiterals; }
  static constexpr omu_EnumLiteral kPositionLiterals[] = {{"CENTROID", 0}, {"NODES", 1}, {"INTEGRATION_POINTS", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(PositionEnm) { return kPositionLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_DamageInitiation";
  static constexpr const char* kScriptName = "DamageInitiation";
  static constexpr int kVersion = 2305;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::DamageInitiation); }

  static constexpr auto Fields() {
    using C = kmaC_DamageInitiation;
    return std::tuple{
        fw_Field{"definition", 0, "definition", &C::definition},
        fw_Field{"omega", 1, "omega", &C::omega},
        fw_Field{"tolerance", 2, "tolerance", &C::tolerance},
        fw_Field{"numberImperfections", 3, "numberImperfections", &C::numberImperfections},
        fw_Field{"ks", 4, "ks", &C::ks},
        fw_Field{"alpha", 5, "alpha", &C::alpha},
        fw_Field{"direction", 6, "direction", &C::direction},
        fw_Field{"position", 7, "position", &C::position},
        fw_Field{"feq", 8, "feq", &C::feq},
        fw_Field{"fnn", 9, "fnn", &C::fnn},
        fw_Field{"fnt", 10, "fnt", &C::fnt},
        fw_Field{"frequency", 11, "frequency", &C::frequency},
        fw_Field{"temperatureDependency", 12, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 13, "dependencies", &C::dependencies},
        fw_Field{"table", 14, "table", &C::table},
        fw_Field{"DamageEvolutionList", 15, "DamageEvolutionList", &C::damageEvolutions},
    };
  }

  kmaC_DamageInitiation() = default;
  explicit kmaC_DamageInitiation(const cls_ReadVisitor& r);
  // Dependencies (code 0), the table (code 23), then the damage evolutions: each of its class
  // (code 11) and valid, no failure index twice (code 74).
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const kmaC_MaterialOptionList* OptionList(std::string_view member) const override;
  kmaC_MaterialOptionList* ModifyOptionList(std::string_view member) override;

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String definitionCmd() { return "definition"; }
  static cow_String omegaCmd() { return "omega"; }
  static cow_String toleranceCmd() { return "tolerance"; }
  static cow_String numberImperfectionsCmd() { return "numberImperfections"; }
  static cow_String ksCmd() { return "ks"; }
  static cow_String alphaCmd() { return "alpha"; }
  static cow_String directionCmd() { return "direction"; }
  static cow_String positionCmd() { return "position"; }
  static cow_String feqCmd() { return "feq"; }
  static cow_String fnnCmd() { return "fnn"; }
  static cow_String fntCmd() { return "fnt"; }
  static cow_String frequencyCmd() { return "frequency"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String damageEvolutionListCmd() { return "DamageEvolutionList"; }
  static cow_String setValuesCmd() { return "setValues"; }

  DefinitionEnm GetDefinition() const { return definition; }
  void SetDefinition(DefinitionEnm v) { definition = omu_PrimEnum<DefinitionEnm, 1>(v).GetValue(); }
  double GetOmega() const { return omega; }
  void SetOmega(double v) { omega = v; }
  double GetTolerance() const { return tolerance; }
  void SetTolerance(double v) { tolerance = v; }
  std::int32_t GetNumberImperfections() const { return numberImperfections; }
  void SetNumberImperfections(std::int32_t v) { numberImperfections = v; }
  double GetKs() const { return ks; }
  void SetKs(double v) { ks = v; }
  double GetAlpha() const { return alpha; }
  void SetAlpha(double v) { alpha = v; }
  DirectionEnm GetDirection() const { return direction; }
  void SetDirection(DirectionEnm v) { direction = omu_PrimEnum<DirectionEnm, 1>(v).GetValue(); }
  PositionEnm GetPosition() const { return position; }
  void SetPosition(PositionEnm v) { position = omu_PrimEnum<PositionEnm, 1>(v).GetValue(); }
  double GetFeq() const { return feq; }
  void SetFeq(double v) { feq = v; }
  double GetFnn() const { return fnn; }
  void SetFnn(double v) { fnn = v; }
  double GetFnt() const { return fnt; }
  void SetFnt(double v) { fnt = v; }
  std::int32_t GetFrequency() const { return frequency; }
  void SetFrequency(std::int32_t v) { frequency = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  // The list takes kmaC_DamageEvolution objects only; a list with another object is refused whole.
  const kmaC_MaterialOptionList& GetDamageEvolutionList() const { return damageEvolutions.List(); }
  void SetDamageEvolutionList(const kmaC_MaterialOptionList& v) { damageEvolutions.Set(v, "DamageEvolutionList"); }

 private:
  DefinitionEnm definition = DefinitionEnm::MSFLD;
  double omega = 1.0;
  double tolerance = 0.05;
  std::int32_t numberImperfections = 4;
  double ks = 0.0;
  double alpha = 0.0;
  DirectionEnm direction = DirectionEnm::NMORI;
  PositionEnm position = PositionEnm::CENTROID;
  double feq = 10.0;
  double fnn = 10.0;
  double fnt = 10.0;
  std::int32_t frequency = 1;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionListMember<kmaC_OptionClass::DamageEvolution> damageEvolutions;
};

extern template class fw_PersistentClass<kmaC_DamageInitiation, kmaC_MaterialOption>;
