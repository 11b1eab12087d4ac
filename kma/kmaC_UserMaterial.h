#pragma once
// Constitutive behavior supplied by a user routine: its mechanical and thermal constants.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_UserMaterial : public fw_PersistentClass<kmaC_UserMaterial, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { MECHANICAL = 0, THERMAL = 1, THERMOMECHANICAL = 2 };
  enum class HybridFormulationEnm : std::int32_t { INCOMPRESSIBLE = 0, TOTAL = 1, INCREMENTAL = 2 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"MECHANICAL", 0}, {"THERMAL", 1}, {"THERMOMECHANICAL", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }
  static constexpr omu_EnumLiteral kHybridFormulationLiterals[] = {{"INCOMPRESSIBLE", 0}, {"TOTAL", 1}, {"INCREMENTAL", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(HybridFormulationEnm) { return kHybridFormulationLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_UserMaterial";
  static constexpr const char* kScriptName = "UserMaterial";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::UserMaterial); }

  static constexpr auto Fields() {
    using C = kmaC_UserMaterial;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"unsymm", 1, "unsymm", &C::unsymm},
        fw_Field{"mechanicalConstants", 2, "mechanicalConstants", &C::mechanicalConstants},
        fw_Field{"thermalConstants", 3, "thermalConstants", &C::thermalConstants},
        fw_Field{"effmod", 4, "effmod", &C::effmod},
        fw_Field{"hybridFormulation", 5, "hybridFormulation", &C::hybridFormulation},
    };
  }

  kmaC_UserMaterial() = default;
  explicit kmaC_UserMaterial(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String unsymmCmd() { return "unsymm"; }
  static cow_String mechanicalConstantsCmd() { return "mechanicalConstants"; }
  static cow_String thermalConstantsCmd() { return "thermalConstants"; }
  static cow_String effmodCmd() { return "effmod"; }
  static cow_String hybridFormulationCmd() { return "hybridFormulation"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetUnsymm() const { return unsymm; }
  void SetUnsymm(bool v) { unsymm = v; }
  const kmaC_MaterialTable& GetMechanicalConstants() const { return mechanicalConstants; }
  void SetMechanicalConstants(const kmaC_MaterialTable& v) { mechanicalConstants = v; }
  const kmaC_MaterialTable& GetThermalConstants() const { return thermalConstants; }
  void SetThermalConstants(const kmaC_MaterialTable& v) { thermalConstants = v; }
  bool GetEffmod() const { return effmod; }
  void SetEffmod(bool v) { effmod = v; }
  HybridFormulationEnm GetHybridFormulation() const { return hybridFormulation; }
  void SetHybridFormulation(HybridFormulationEnm v) { hybridFormulation = omu_PrimEnum<HybridFormulationEnm, 1>(v).GetValue(); }

 private:
  TypeEnm type = TypeEnm::MECHANICAL;
  bool unsymm = false;
  kmaC_MaterialTable mechanicalConstants;
  kmaC_MaterialTable thermalConstants;
  bool effmod = false;
  HybridFormulationEnm hybridFormulation = HybridFormulationEnm::INCOMPRESSIBLE;
};

extern template class fw_PersistentClass<kmaC_UserMaterial, kmaC_MaterialOption>;
