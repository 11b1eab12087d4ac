#pragma once
// Tensile failure of a plastic option: the hydrostatic cutoff stress, how the deviatoric and
// pressure stresses fail, and whether failed elements are deleted.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_TensileFailure : public fw_PersistentClass<kmaC_TensileFailure, kmaC_MaterialOption> {
 public:
  enum class ShearEnm : std::int32_t { DUCTILE = 0, BRITTLE = 1 };
  enum class PressureEnm : std::int32_t { DUCTILE = 0, BRITTLE = 1 };
  static constexpr omu_EnumLiteral kShearLiterals[] = {{"DUCTILE", 0}, {"BRITTLE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ShearEnm) { return kShearLiterals; }
  static constexpr omu_EnumLiteral kPressureLiterals[] = {{"DUCTILE", 0}, {"BRITTLE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(PressureEnm) { return kPressureLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_TensileFailure";
  static constexpr const char* kScriptName = "TensileFailure";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::TensileFailure); }

  static constexpr auto Fields() {
    using C = kmaC_TensileFailure;
    return std::tuple{
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 1, "dependencies", &C::dependencies},
        fw_Field{"elementDeletion", 2, "elementDeletion", &C::elementDeletion},
        fw_Field{"shear", 3, "shear", &C::shear},
        fw_Field{"pressure", 4, "pressure", &C::pressure},
        fw_Field{"table", 5, "table", &C::table},
    };
  }

  kmaC_TensileFailure() = default;
  explicit kmaC_TensileFailure(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String elementDeletionCmd() { return "elementDeletion"; }
  static cow_String shearCmd() { return "shear"; }
  static cow_String pressureCmd() { return "pressure"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  bool GetElementDeletion() const { return elementDeletion; }
  void SetElementDeletion(bool v) { elementDeletion = v; }
  ShearEnm GetShear() const { return shear; }
  void SetShear(ShearEnm v) { shear = omu_PrimEnum<ShearEnm, 1>(v).GetValue(); }
  PressureEnm GetPressure() const { return pressure; }
  void SetPressure(PressureEnm v) { pressure = omu_PrimEnum<PressureEnm, 1>(v).GetValue(); }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  bool elementDeletion = true;
  ShearEnm shear = ShearEnm::DUCTILE;
  PressureEnm pressure = PressureEnm::DUCTILE;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_TensileFailure, kmaC_MaterialOption>;
