#pragma once
// Extended Drucker-Prager plasticity: the shear criterion, the flow potential eccentricity and the
// data table.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_DruckerPrager : public fw_PersistentClass<kmaC_DruckerPrager, kmaC_MaterialOption> {
 public:
  enum class ShearCriterionEnm : std::int32_t { LINEAR = 0, HYPERBOLIC = 1, EXPONENTIAL = 2 };
  static constexpr omu_EnumLiteral kShearCriterionLiterals[] = {{"LINEAR", 0}, {"HYPERBOLIC", 1}, {"EXPONENTIAL", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ShearCriterionEnm) { return kShearCriterionLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_DruckerPrager";
  static constexpr const char* kScriptName = "DruckerPrager";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::DruckerPrager); }

  static constexpr auto Fields() {
    using C = kmaC_DruckerPrager;
    return std::tuple{
        fw_Field{"shearCriterion", 0, "shearCriterion", &C::shearCriterion},
        fw_Field{"eccentricity", 1, "eccentricity", &C::eccentricity},
        fw_Field{"testData", 2, "testData", &C::testData},
        fw_Field{"temperatureDependency", 3, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 4, "dependencies", &C::dependencies},
        fw_Field{"table", 5, "table", &C::table},
        fw_Field{"druckerPragerCreep", 6, "druckerPragerCreep", &C::druckerPragerCreep},
    };
  }

  kmaC_DruckerPrager() = default;
  explicit kmaC_DruckerPrager(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for drucker prager"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String shearCriterionCmd() { return "shearCriterion"; }
  static cow_String eccentricityCmd() { return "eccentricity"; }
  static cow_String testDataCmd() { return "testData"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String druckerPragerCreepCmd() { return "druckerPragerCreep"; }
  static cow_String setValuesCmd() { return "setValues"; }

  ShearCriterionEnm GetShearCriterion() const { return shearCriterion; }
  void SetShearCriterion(ShearCriterionEnm v) { shearCriterion = omu_PrimEnum<ShearCriterionEnm, 1>(v).GetValue(); }
  double GetEccentricity() const { return eccentricity; }
  void SetEccentricity(double v) { eccentricity = v; }
  bool GetTestData() const { return testData; }
  void SetTestData(bool v) { testData = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  const kmaC_MaterialOption* GetDruckerPragerCreep() const { return druckerPragerCreep.ConstGet(); }
  void SetDruckerPragerCreep(const kmaC_MaterialOption& v) { druckerPragerCreep.Set(v, "druckerPragerCreep"); }
  void ClearDruckerPragerCreep() { druckerPragerCreep.Clear(); }

 private:
  ShearCriterionEnm shearCriterion = ShearCriterionEnm::LINEAR;
  double eccentricity = 0.1;
  bool testData = false;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::DruckerPragerCreep> druckerPragerCreep;
};

extern template class fw_PersistentClass<kmaC_DruckerPrager, kmaC_MaterialOption>;
