#pragma once
// Hyperelastic foam: the order of the potential, given by coefficients or by test data.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Hyperfoam : public fw_PersistentClass<kmaC_Hyperfoam, kmaC_MaterialOption> {
 public:
  enum class ModuliEnm : std::int32_t { LONG_TERM = 0, INSTANTANEOUS = 1 };
  static constexpr omu_EnumLiteral kModuliLiterals[] = {{"LONG_TERM", 0}, {"INSTANTANEOUS", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ModuliEnm) { return kModuliLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Hyperfoam";
  static constexpr const char* kScriptName = "Hyperfoam";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Hyperfoam); }

  static constexpr auto Fields() {
    using C = kmaC_Hyperfoam;
    return std::tuple{
        fw_Field{"testData", 0, "testData", &C::testData},
        fw_Field{"poisson", 1, "poisson", &C::poisson},
        fw_Field{"n", 2, "n", &C::n},
        fw_Field{"moduli", 3, "moduli", &C::moduli},
        fw_Field{"temperatureDependency", 4, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 5, "dependencies", &C::dependencies},
        fw_Field{"table", 6, "table", &C::table},
    };
  }

  kmaC_Hyperfoam() = default;
  explicit kmaC_Hyperfoam(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for hyperfoam"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String testDataCmd() { return "testData"; }
  static cow_String poissonCmd() { return "poisson"; }
  static cow_String nCmd() { return "n"; }
  static cow_String moduliCmd() { return "moduli"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetTestData() const { return testData; }
  void SetTestData(bool v) { testData = v; }
  double GetPoisson() const { return poisson; }
  void SetPoisson(double v) { poisson = v; }
  std::int32_t GetN() const { return n; }
  void SetN(std::int32_t v) { n = v; }
  ModuliEnm GetModuli() const { return moduli; }
  void SetModuli(ModuliEnm v) { moduli = omu_PrimEnum<ModuliEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool testData = false;
  double poisson = 0.0;
  std::int32_t n = 1;
  ModuliEnm moduli = ModuliEnm::LONG_TERM;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Hyperfoam, kmaC_MaterialOption>;
