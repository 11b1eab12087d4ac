#pragma once
// Permeability of a porous medium by symmetry, the specific weight of the fluid and its inertial
// drag.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Permeability : public fw_PersistentClass<kmaC_Permeability, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { ISOTROPIC = 0, ORTHOTROPIC = 1, ANISOTROPIC = 2 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"ISOTROPIC", 0}, {"ORTHOTROPIC", 1}, {"ANISOTROPIC", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Permeability";
  static constexpr const char* kScriptName = "Permeability";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Permeability); }

  static constexpr auto Fields() {
    using C = kmaC_Permeability;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"specificWeight", 1, "specificWeight", &C::specificWeight},
        fw_Field{"inertialDragCoefficient", 2, "inertialDragCoefficient", &C::inertialDragCoefficient},
        fw_Field{"temperatureDependency", 3, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 4, "dependencies", &C::dependencies},
        fw_Field{"table", 5, "table", &C::table},
    };
  }

  kmaC_Permeability() = default;
  explicit kmaC_Permeability(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for permeability"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String specificWeightCmd() { return "specificWeight"; }
  static cow_String inertialDragCoefficientCmd() { return "inertialDragCoefficient"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  double GetSpecificWeight() const { return specificWeight; }
  void SetSpecificWeight(double v) { specificWeight = v; }
  double GetInertialDragCoefficient() const { return inertialDragCoefficient; }
  void SetInertialDragCoefficient(double v) { inertialDragCoefficient = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::ISOTROPIC;
  double specificWeight = 0.0;
  double inertialDragCoefficient = 0.142887;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Permeability, kmaC_MaterialOption>;
