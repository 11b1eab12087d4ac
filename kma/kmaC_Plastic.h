#pragma once
// Metal plasticity: the hardening law, the yield data table and seven optional sub-options. The
// rules tie the table's layout and the permitted sub-options to the hardening law.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_OrLiteral.h"
#include <limits>

#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Plastic : public fw_PersistentClass<kmaC_Plastic, kmaC_MaterialOption> {
 public:
  enum class HardeningEnm : std::int32_t {
    ISOTROPIC = 0,
    KINEMATIC = 1,
    MULTILINEAR_KINEMATIC = 2,
    COMBINED = 3,
    JOHNSON_COOK = 4,
    USER = 5,
  };
  enum class DataTypeEnm : std::int32_t { HALF_CYCLE = 0, PARAMETERS = 1, STABILIZED = 2 };
  enum class ExtrapolationEnm : std::int32_t { CONSTANT = 0, LINEAR = 1 };

  static constexpr omu_EnumLiteral kHardeningLiterals[] = {
      {"ISOTROPIC", 0},    {"KINEMATIC", 1}, {"MULTILINEAR_KINEMATIC", 2}, {"COMBINED", 3},
      {"JOHNSON_COOK", 4}, {"USER", 5},      {nullptr, 0}};
  static constexpr omu_EnumLiteral kDataTypeLiterals[] = {
      {"HALF_CYCLE", 0}, {"PARAMETERS", 1}, {"STABILIZED", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kExtrapolationLiterals[] = {{"CONSTANT", 0}, {"LINEAR", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(HardeningEnm) { return kHardeningLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DataTypeEnm) { return kDataTypeLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ExtrapolationEnm) { return kExtrapolationLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Plastic";
  static constexpr const char* kScriptName = "Plastic";
  static constexpr int kVersion = 2217;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Plastic); }
  // Where the tensile-failure refusal says it comes from.
  static constexpr const char* kSourceFile = "QMXOdbKmaC.m/src/kmaC_Plastic";
  static constexpr int kTensileFailureLine = 40;
  static constexpr const char* kTensileFailureMessage =
      " Error: Tensile Failure suboption can be used only for the Isotropic or Johnson-Cook Hardening type in Plastic. ";

  // Persistent fields in write order; the numbers record the version that added each field
  // (0-11 at 203, 12 at 419, 13-15 at 1107, 16-17 at 2008, 18 at 2217).
  static constexpr auto Fields() {
    using C = kmaC_Plastic;
    return std::tuple{
        fw_Field{"hardening", 0, "hardening", &C::hardening},
        fw_Field{"rate", 1, "rate", &C::rate},
        fw_Field{"dataType", 13, "dataType", &C::dataType},
        fw_Field{"strainRangeDependency", 14, "strainRangeDependency", &C::strainRangeDependency},
        fw_Field{"numBackstresses", 15, "numBackstresses", &C::numBackstresses},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
        fw_Field{"rateDependent", 5, "rateDependent", &C::rateDependent},
        fw_Field{"potential", 6, "potential", &C::potential},
        fw_Field{"cyclicHardening", 7, "cyclicHardening", &C::cyclicHardening},
        fw_Field{"ornl", 8, "ornl", &C::ornl},
        fw_Field{"cycledPlastic", 9, "cycledPlastic", &C::cycledPlastic},
        fw_Field{"annealTemperature", 10, "annealTemperature", &C::annealTemperature},
        fw_Field{"tensileFailure", 11, "tensileFailure", &C::tensileFailure},
        fw_Field{"properties", 12, "properties", &C::properties},
        fw_Field{"scaleStress", 16, "scaleStress", &C::scaleStress},
        fw_Field{"staticRecovery", 17, "staticRecovery", &C::staticRecovery},
        fw_Field{"extrapolation", 18, "extrapolation", &C::extrapolation},
    };
  }

  kmaC_Plastic() = default;
  explicit kmaC_Plastic(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for plastic"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String hardeningCmd() { return "hardening"; }
  static cow_String rateCmd() { return "rate"; }
  static cow_String dataTypeCmd() { return "dataType"; }
  static cow_String strainRangeDependencyCmd() { return "strainRangeDependency"; }
  static cow_String numBackstressesCmd() { return "numBackstresses"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String rateDependentCmd() { return "rateDependent"; }
  static cow_String potentialCmd() { return "potential"; }
  static cow_String cyclicHardeningCmd() { return "cyclicHardening"; }
  static cow_String ornlCmd() { return "ornl"; }
  static cow_String cycledPlasticCmd() { return "cycledPlastic"; }
  static cow_String annealTemperatureCmd() { return "annealTemperature"; }
  static cow_String tensileFailureCmd() { return "tensileFailure"; }
  static cow_String propertiesCmd() { return "properties"; }
  static cow_String scaleStressCmd() { return "scaleStress"; }
  static cow_String staticRecoveryCmd() { return "staticRecovery"; }
  static cow_String extrapolationCmd() { return "extrapolation"; }
  static cow_String setValuesCmd() { return "setValues"; }

  HardeningEnm GetHardening() const { return hardening; }
  void SetHardening(HardeningEnm v) { hardening = omu_PrimEnum<HardeningEnm, 1>(v).GetValue(); }
  bool GetRate() const { return rate; }
  void SetRate(bool v) { rate = v; }
  DataTypeEnm GetDataType() const { return dataType; }
  void SetDataType(DataTypeEnm v) { dataType = omu_PrimEnum<DataTypeEnm, 1>(v).GetValue(); }
  bool GetStrainRangeDependency() const { return strainRangeDependency; }
  void SetStrainRangeDependency(bool v) { strainRangeDependency = v; }
  std::int32_t GetNumBackstresses() const { return numBackstresses; }
  void SetNumBackstresses(std::int32_t v) { numBackstresses = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  std::int32_t GetProperties() const { return properties; }
  void SetProperties(std::int32_t v) { properties = v; }
  double GetScaleStress() const { return scaleStress; }
  void SetScaleStress(double v) { scaleStress = v; }
  bool GetStaticRecovery() const { return staticRecovery; }
  void SetStaticRecovery(bool v) { staticRecovery = v; }
  ExtrapolationEnm GetExtrapolation() const { return extrapolation; }
  void SetExtrapolation(ExtrapolationEnm v) { extrapolation = omu_PrimEnum<ExtrapolationEnm, 1>(v).GetValue(); }

  // The sub-options, by slot: each holds an option of its own class or nothing. Their classes
  // plug in as they are registered; a slot whose class is not offered refuses every object.
  const kmaC_MaterialOption* GetRateDependent() const { return rateDependent.ConstGet(); }
  void SetRateDependent(const kmaC_MaterialOption& v) { rateDependent.Set(v, "rateDependent"); }
  void ClearRateDependent() { rateDependent.Clear(); }
  const kmaC_MaterialOption* GetPotential() const { return potential.ConstGet(); }
  void SetPotential(const kmaC_MaterialOption& v) { potential.Set(v, "potential"); }
  void ClearPotential() { potential.Clear(); }
  const kmaC_MaterialOption* GetCyclicHardening() const { return cyclicHardening.ConstGet(); }
  void SetCyclicHardening(const kmaC_MaterialOption& v) { cyclicHardening.Set(v, "cyclicHardening"); }
  void ClearCyclicHardening() { cyclicHardening.Clear(); }
  const kmaC_MaterialOption* GetOrnl() const { return ornl.ConstGet(); }
  void SetOrnl(const kmaC_MaterialOption& v) { ornl.Set(v, "ornl"); }
  void ClearOrnl() { ornl.Clear(); }
  const kmaC_MaterialOption* GetCycledPlastic() const { return cycledPlastic.ConstGet(); }
  void SetCycledPlastic(const kmaC_MaterialOption& v) { cycledPlastic.Set(v, "cycledPlastic"); }
  void ClearCycledPlastic() { cycledPlastic.Clear(); }
  const kmaC_MaterialOption* GetAnnealTemperature() const { return annealTemperature.ConstGet(); }
  void SetAnnealTemperature(const kmaC_MaterialOption& v) { annealTemperature.Set(v, "annealTemperature"); }
  void ClearAnnealTemperature() { annealTemperature.Clear(); }
  const kmaC_MaterialOption* GetTensileFailure() const { return tensileFailure.ConstGet(); }
  void SetTensileFailure(const kmaC_MaterialOption& v) { tensileFailure.Set(v, "tensileFailure"); }
  void ClearTensileFailure() { tensileFailure.Clear(); }

 private:
  HardeningEnm hardening = HardeningEnm::ISOTROPIC;
  bool rate = false;
  DataTypeEnm dataType = DataTypeEnm::HALF_CYCLE;
  bool strainRangeDependency = false;
  std::int32_t numBackstresses = 1;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::RateDependent> rateDependent;
  kmaC_OptionSlot<kmaC_OptionClass::Potential> potential;
  kmaC_OptionSlot<kmaC_OptionClass::CyclicHardening> cyclicHardening;
  kmaC_OptionSlot<kmaC_OptionClass::Ornl> ornl;
  kmaC_OptionSlot<kmaC_OptionClass::CycledPlastic> cycledPlastic;
  kmaC_OptionSlot<kmaC_OptionClass::AnnealTemperature> annealTemperature;
  kmaC_OptionSlot<kmaC_OptionClass::TensileFailure> tensileFailure;
  std::int32_t properties = 0;
  // The largest finite double: no stress scale was set.
  fw_Unspecified scaleStress = std::numeric_limits<double>::max();
  bool staticRecovery = false;
  ExtrapolationEnm extrapolation = ExtrapolationEnm::CONSTANT;
};

extern template class fw_PersistentClass<kmaC_Plastic, kmaC_MaterialOption>;
