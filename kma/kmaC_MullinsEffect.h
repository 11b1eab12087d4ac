#pragma once
// Mullins effect: the softening of a filled elastomer on reloading, given by the constants r, m and
// beta of the pseudo-elastic damage model (CONSTANTS), by a user subroutine with `properties`
// constants (USER) or by unloading-reloading test data in three lists (TEST_DATA).
// The table width follows the definition: 3 (r, m, beta) for CONSTANTS, `properties` for USER,
// plus one column for temperature when temperature-dependent and one per field-variable dependency.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionListMember.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_MullinsEffect : public fw_PersistentClass<kmaC_MullinsEffect, kmaC_MaterialOption> {
 public:
  enum class DefinitionEnm : std::int32_t { CONSTANTS = 0, USER = 1, TEST_DATA = 2 };
  static constexpr omu_EnumLiteral kDefinitionLiterals[] = {
      {"CONSTANTS", 0}, {"USER", 1}, {"TEST_DATA", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(DefinitionEnm) { return kDefinitionLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_MullinsEffect";
  static constexpr const char* kScriptName = "MullinsEffect";
  static constexpr int kVersion = 1106;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::MullinsEffect); }

  // Fields 0-4 date from 850; the test-data lists (5-7) came with TEST_DATA at 1106.
  static constexpr auto Fields() {
    using C = kmaC_MullinsEffect;
    return std::tuple{
        fw_Field{"definition", 0, "definition", &C::definition},
        fw_Field{"properties", 1, "properties", &C::properties},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
        fw_Field{"uniaxialTests", 5, "uniaxialTests", &C::uniaxialTests},
        fw_Field{"biaxialTests", 6, "biaxialTests", &C::biaxialTests},
        fw_Field{"planarTests", 7, "planarTests", &C::planarTests},
    };
  }

  kmaC_MullinsEffect() = default;
  explicit kmaC_MullinsEffect(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const kmaC_MaterialOptionList* OptionList(std::string_view member) const override;
  kmaC_MaterialOptionList* ModifyOptionList(std::string_view member) override;

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String definitionCmd() { return "definition"; }
  static cow_String propertiesCmd() { return "properties"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String uniaxialTestsCmd() { return "uniaxialTests"; }
  static cow_String biaxialTestsCmd() { return "biaxialTests"; }
  static cow_String planarTestsCmd() { return "planarTests"; }
  static cow_String setValuesCmd() { return "setValues"; }

  DefinitionEnm GetDefinition() const { return definition; }
  void SetDefinition(DefinitionEnm v) { definition = omu_PrimEnum<DefinitionEnm, 1>(v).GetValue(); }
  std::int32_t GetProperties() const { return properties; }
  void SetProperties(std::int32_t v) { properties = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  // The lists take kmaC_UniaxialTestData, kmaC_BiaxialTestData and kmaC_PlanarTestData objects
  // only; a list with another object is refused whole.
  const kmaC_MaterialOptionList& GetUniaxialTests() const { return uniaxialTests.List(); }
  void SetUniaxialTests(const kmaC_MaterialOptionList& v) { uniaxialTests.Set(v, "uniaxialTests"); }
  const kmaC_MaterialOptionList& GetBiaxialTests() const { return biaxialTests.List(); }
  void SetBiaxialTests(const kmaC_MaterialOptionList& v) { biaxialTests.Set(v, "biaxialTests"); }
  const kmaC_MaterialOptionList& GetPlanarTests() const { return planarTests.List(); }
  void SetPlanarTests(const kmaC_MaterialOptionList& v) { planarTests.Set(v, "planarTests"); }

 private:
  DefinitionEnm definition = DefinitionEnm::CONSTANTS;
  std::int32_t properties = 0;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionListMember<kmaC_OptionClass::UniaxialTestData> uniaxialTests;
  kmaC_OptionListMember<kmaC_OptionClass::BiaxialTestData> biaxialTests;
  kmaC_OptionListMember<kmaC_OptionClass::PlanarTestData> planarTests;
};

extern template class fw_PersistentClass<kmaC_MullinsEffect, kmaC_MaterialOption>;
