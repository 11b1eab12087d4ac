#pragma once
// Tangential flow in a gap of a cohesive element: the fluid law and the permeability limit.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_GapFlow : public fw_PersistentClass<kmaC_GapFlow, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { NEWTONIAN = 0, POWER_LAW = 1, BINGHAM_PLASTIC = 2, HERSCHEL_BULKLEY = 3, USER = 4 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"NEWTONIAN", 0}, {"POWER_LAW", 1}, {"BINGHAM_PLASTIC", 2}, {"HERSCHEL_BULKLEY", 3}, {"USER", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_GapFlow";
  static constexpr const char* kScriptName = "GapFlow";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::GapFlow); }

  static constexpr auto Fields() {
    using C = kmaC_GapFlow;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"kmax", 1, "kmax", &C::kmax},
        fw_Field{"temperatureDependency", 2, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 3, "dependencies", &C::dependencies},
        fw_Field{"table", 4, "table", &C::table},
    };
  }

  kmaC_GapFlow() = default;
  explicit kmaC_GapFlow(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String kmaxCmd() { return "kmax"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  double GetKmax() const { return kmax; }
  void SetKmax(double v) { kmax = v; }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::NEWTONIAN;
  double kmax = 0.0;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_GapFlow, kmaC_MaterialOption>;
