#pragma once
// Hyperelastic behavior: the strain energy potential and its order, given by coefficients or by
// test data, and the time scale of the moduli. With `testData` the coefficients are fitted to the
// test data in four lists (uniaxial, biaxial, planar, volumetric), which then are validated.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionListMember.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Hyperelastic : public fw_PersistentClass<kmaC_Hyperelastic, kmaC_MaterialOption> {
 public:
  enum class MaterialTypeEnm : std::int32_t { ISOTROPIC = 0, ANISOTROPIC = 1 };
  enum class TypeEnm : std::int32_t { ARRUDA_BOYCE = 0, MOONEY_RIVLIN = 1, NEO_HOOKE = 2, OGDEN = 3, POLYNOMIAL = 4, REDUCED_POLYNOMIAL = 5, VAN_DER_WAALS = 6, YEOH = 7, MARLOW = 8, USER = 9, UNKNOWN = 10 };
  enum class ModuliTimeScaleEnm : std::int32_t { LONG_TERM = 0, INSTANTANEOUS = 1 };
  enum class BehaviorTypeEnm : std::int32_t { INCOMPRESSIBLE = 0, COMPRESSIBLE = 1 };
  static constexpr omu_EnumLiteral kMaterialTypeLiterals[] = {{"ISOTROPIC", 0}, {"ANISOTROPIC", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(MaterialTypeEnm) { return kMaterialTypeLiterals; }
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ARRUDA_BOYCE", 0}, {"MOONEY_RIVLIN", 1}, {"NEO_HOOKE", 2}, {"OGDEN", 3}, {"POLYNOMIAL", 4}, {"REDUCED_POLYNOMIAL", 5}, {"VAN_DER_WAALS", 6}, {"YEOH", 7}, {"MARLOW", 8}, {"USER", 9}, {"UNKNOWN", 10}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  static constexpr omu_EnumLiteral kModuliTimeScaleLiterals[] = {{"LONG_TERM", 0}, {"INSTANTANEOUS", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ModuliTimeScaleEnm) { return kModuliTimeScaleLiterals; }
  static constexpr omu_EnumLiteral kBehaviorTypeLiterals[] = {{"INCOMPRESSIBLE", 0}, {"COMPRESSIBLE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(BehaviorTypeEnm) { return kBehaviorTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Hyperelastic";
  static constexpr const char* kScriptName = "Hyperelastic";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Hyperelastic); }

  static constexpr auto Fields() {
    using C = kmaC_Hyperelastic;
    return std::tuple{
        fw_Field{"materialType", 0, "materialType", &C::materialType},
        fw_Field{"type", 1, "type", &C::type},
        fw_Field{"testData", 2, "testData", &C::testData},
        fw_Field{"n", 3, "n", &C::n},
        fw_Field{"moduliTimeScale", 4, "moduliTimeScale", &C::moduliTimeScale},
        fw_Field{"poissonRatio", 5, "poissonRatio", &C::poissonRatio},
        fw_Field{"behaviorType", 6, "behaviorType", &C::behaviorType},
        fw_Field{"temperatureDependency", 7, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 8, "dependencies", &C::dependencies},
        fw_Field{"table", 9, "table", &C::table},
        fw_Field{"uniaxialTests", 10, "uniaxialTests", &C::uniaxialTests},
        fw_Field{"biaxialTests", 11, "biaxialTests", &C::biaxialTests},
        fw_Field{"planarTests", 12, "planarTests", &C::planarTests},
        fw_Field{"volumetricTests", 13, "volumetricTests", &C::volumetricTests},
    };
  }

  kmaC_Hyperelastic() = default;
  explicit kmaC_Hyperelastic(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for hyperelastic"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String materialTypeCmd() { return "materialType"; }
  static cow_String typeCmd() { return "type"; }
  static cow_String testDataCmd() { return "testData"; }
  static cow_String nCmd() { return "n"; }
  static cow_String moduliTimeScaleCmd() { return "moduliTimeScale"; }
  static cow_String poissonRatioCmd() { return "poissonRatio"; }
  static cow_String behaviorTypeCmd() { return "behaviorType"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String uniaxialTestsCmd() { return "uniaxialTests"; }
  static cow_String biaxialTestsCmd() { return "biaxialTests"; }
  static cow_String planarTestsCmd() { return "planarTests"; }
  static cow_String volumetricTestsCmd() { return "volumetricTests"; }
  static cow_String setValuesCmd() { return "setValues"; }

  MaterialTypeEnm GetMaterialType() const { return materialType; }
  void SetMaterialType(MaterialTypeEnm v) { materialType = omu_PrimEnum<MaterialTypeEnm, 1>(v).GetValue(); }
  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetTestData() const { return testData; }
  void SetTestData(bool v) { testData = v; }
  std::int32_t GetN() const { return n; }
  void SetN(std::int32_t v) { n = v; }
  ModuliTimeScaleEnm GetModuliTimeScale() const { return moduliTimeScale; }
  void SetModuliTimeScale(ModuliTimeScaleEnm v) { moduliTimeScale = omu_PrimEnum<ModuliTimeScaleEnm, 1>(v).GetValue(); }
  double GetPoissonRatio() const { return poissonRatio; }
  void SetPoissonRatio(double v) { poissonRatio = v; }
  BehaviorTypeEnm GetBehaviorType() const { return behaviorType; }
  void SetBehaviorType(BehaviorTypeEnm v) { behaviorType = omu_PrimEnum<BehaviorTypeEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  // Each list takes its own test-data class only; a list with another object is refused whole.
  const kmaC_MaterialOptionList& GetUniaxialTests() const { return uniaxialTests.List(); }
  void SetUniaxialTests(const kmaC_MaterialOptionList& v) { uniaxialTests.Set(v, "uniaxialTests"); }
  const kmaC_MaterialOptionList& GetBiaxialTests() const { return biaxialTests.List(); }
  void SetBiaxialTests(const kmaC_MaterialOptionList& v) { biaxialTests.Set(v, "biaxialTests"); }
  const kmaC_MaterialOptionList& GetPlanarTests() const { return planarTests.List(); }
  void SetPlanarTests(const kmaC_MaterialOptionList& v) { planarTests.Set(v, "planarTests"); }
  const kmaC_MaterialOptionList& GetVolumetricTests() const { return volumetricTests.List(); }
  void SetVolumetricTests(const kmaC_MaterialOptionList& v) { volumetricTests.Set(v, "volumetricTests"); }

 private:
  MaterialTypeEnm materialType = MaterialTypeEnm::ISOTROPIC;
  TypeEnm type = TypeEnm::UNKNOWN;
  bool testData = true;
  std::int32_t n = 1;
  ModuliTimeScaleEnm moduliTimeScale = ModuliTimeScaleEnm::LONG_TERM;
  double poissonRatio = 0.0;
  BehaviorTypeEnm behaviorType = BehaviorTypeEnm::INCOMPRESSIBLE;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionListMember<kmaC_OptionClass::UniaxialTestData> uniaxialTests;
  kmaC_OptionListMember<kmaC_OptionClass::BiaxialTestData> biaxialTests;
  kmaC_OptionListMember<kmaC_OptionClass::PlanarTestData> planarTests;
  kmaC_OptionListMember<kmaC_OptionClass::VolumetricTestData> volumetricTests;
};

extern template class fw_PersistentClass<kmaC_Hyperelastic, kmaC_MaterialOption>;
