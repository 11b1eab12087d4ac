#pragma once
// Porous elasticity: logarithmic bulk modulus and Poisson's ratio or shear modulus.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_PorousElastic : public fw_PersistentClass<kmaC_PorousElastic, kmaC_MaterialOption> {
 public:
  enum class ShearEnm : std::int32_t { POISSON = 0, G = 1 };
  static constexpr omu_EnumLiteral kShearLiterals[] = {{"POISSON", 0}, {"G", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ShearEnm) { return kShearLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_PorousElastic";
  static constexpr const char* kScriptName = "PorousElastic";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::PorousElastic); }

  static constexpr auto Fields() {
    using C = kmaC_PorousElastic;
    return std::tuple{
        fw_Field{"shear", 0, "shear", &C::shear},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
    };
  }

  kmaC_PorousElastic() = default;
  explicit kmaC_PorousElastic(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String shearCmd() { return "shear"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  ShearEnm GetShear() const { return shear; }
  void SetShear(ShearEnm v) { shear = omu_PrimEnum<ShearEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  ShearEnm shear = ShearEnm::POISSON;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_PorousElastic, kmaC_MaterialOption>;
