#pragma once
// Linear viscoelasticity in the time or frequency domain: the data form, the Prony series limits
// (nmax, errtol) and a preload.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Viscoelastic : public fw_PersistentClass<kmaC_Viscoelastic, kmaC_MaterialOption> {
 public:
  enum class DomainEnm : std::int32_t { FREQUENCY = 0, TIME = 1 };
  enum class TimeEnm : std::int32_t { PRONY = 0, CREEP_TEST_DATA = 1, RELAXATION_TEST_DATA = 2, FREQUENCY_DATA = 3 };
  enum class FrequencyEnm : std::int32_t { FORMULA = 0, TABULAR = 1, PRONY = 2, CREEP_TEST_DATA = 3, RELAXATION_TEST_DATA = 4 };
  enum class TypeEnm : std::int32_t { ISOTROPIC = 0, TRACTION = 1 };
  enum class PreloadEnm : std::int32_t { NONE = 0, UNIAXIAL = 1, VOLUMETRIC = 2, UNIAXIAL_VOLUMETRIC = 3 };
  static constexpr omu_EnumLiteral kDomainLiterals[] = {{"FREQUENCY", 0}, {"TIME", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DomainEnm) { return kDomainLiterals; }
  static constexpr omu_EnumLiteral kTimeLiterals[] = {{"PRONY", 0}, {"CREEP_TEST_DATA", 1}, {"RELAXATION_TEST_DATA", 2}, {"FREQUENCY_DATA", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TimeEnm) { return kTimeLiterals; }
  static constexpr omu_EnumLiteral kFrequencyLiterals[] = {{"FORMULA", 0}, {"TABULAR", 1}, {"PRONY", 2}, {"CREEP_TEST_DATA", 3}, {"RELAXATION_TEST_DATA", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(FrequencyEnm) { return kFrequencyLiterals; }
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ISOTROPIC", 0}, {"TRACTION", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  static constexpr omu_EnumLiteral kPreloadLiterals[] = {{"NONE", 0}, {"UNIAXIAL", 1}, {"VOLUMETRIC", 2}, {"UNIAXIAL_VOLUMETRIC", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(PreloadEnm) { return kPreloadLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Viscoelastic";
  static constexpr const char* kScriptName = "Viscoelastic";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Viscoelastic); }

  static constexpr auto Fields() {
    using C = kmaC_Viscoelastic;
    return std::tuple{
        fw_Field{"domain", 0, "domain", &C::domain},
        fw_Field{"time", 1, "time", &C::time},
        fw_Field{"frequency", 2, "frequency", &C::frequency},
        fw_Field{"type", 3, "type", &C::type},
        fw_Field{"preload", 4, "preload", &C::preload},
        fw_Field{"errtol", 5, "errtol", &C::errtol},
        fw_Field{"nmax", 6, "nmax", &C::nmax},
        fw_Field{"volumetricTable", 7, "volumetricTable", &C::volumetricTable},
        fw_Field{"table", 8, "table", &C::table},
    };
  }

  kmaC_Viscoelastic() = default;
  explicit kmaC_Viscoelastic(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for viscoelastic"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String domainCmd() { return "domain"; }
  static cow_String timeCmd() { return "time"; }
  static cow_String frequencyCmd() { return "frequency"; }
  static cow_String typeCmd() { return "type"; }
  static cow_String preloadCmd() { return "preload"; }
  static cow_String errtolCmd() { return "errtol"; }
  static cow_String nmaxCmd() { return "nmax"; }
  static cow_String volumetricTableCmd() { return "volumetricTable"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  DomainEnm GetDomain() const { return domain; }
  void SetDomain(DomainEnm v) { domain = omu_PrimEnum<DomainEnm, 1>(v).GetValue(); }
  TimeEnm GetTime() const { return time; }
  void SetTime(TimeEnm v) { time = omu_PrimEnum<TimeEnm, 1>(v).GetValue(); }
  FrequencyEnm GetFrequency() const { return frequency; }
  void SetFrequency(FrequencyEnm v) { frequency = omu_PrimEnum<FrequencyEnm, 1>(v).GetValue(); }
  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  PreloadEnm GetPreload() const { return preload; }
  void SetPreload(PreloadEnm v) { preload = omu_PrimEnum<PreloadEnm, 1>(v).GetValue(); }
  double GetErrtol() const { return errtol; }
  void SetErrtol(double v) { errtol = v; }
  std::int32_t GetNmax() const { return nmax; }
  void SetNmax(std::int32_t v) { nmax = v; }
  const kmaC_MaterialTable& GetVolumetricTable() const { return volumetricTable; }
  void SetVolumetricTable(const kmaC_MaterialTable& v) { volumetricTable = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  DomainEnm domain = DomainEnm::TIME;
  TimeEnm time = TimeEnm::PRONY;
  FrequencyEnm frequency = FrequencyEnm::FORMULA;
  TypeEnm type = TypeEnm::ISOTROPIC;
  PreloadEnm preload = PreloadEnm::NONE;
  double errtol = 0.01;
  std::int32_t nmax = 13;
  kmaC_MaterialTable volumetricTable;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Viscoelastic, kmaC_MaterialOption>;
