#pragma once
// Brittle cracking: the cracking stress and the post-cracking tension stiffening.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_OptionSlot.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_BrittleCracking : public fw_PersistentClass<kmaC_BrittleCracking, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { STRESS = 0, STRAIN = 1, GFI = 2 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"STRESS", 0}, {"STRAIN", 1}, {"GFI", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_BrittleCracking";
  static constexpr const char* kScriptName = "BrittleCracking";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::BrittleCracking); }

  static constexpr auto Fields() {
    using C = kmaC_BrittleCracking;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"temperatureDependency", 1, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"dependencies", 2, "dependencies", &C::dependencies},
        fw_Field{"table", 3, "table", &C::table},
        fw_Field{"shearRetention", 4, "shearRetention", &C::shearRetention},
    };
  }

  kmaC_BrittleCracking() = default;
  explicit kmaC_BrittleCracking(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for brittle cracking"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String dependenciesCmd() { return "dependencies"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String shearRetentionCmd() { return "shearRetention"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  std::int32_t GetDependencies() const { return dependencies; }
  void SetDependencies(std::int32_t v) { dependencies = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }
  const kmaC_MaterialOption* GetShearRetention() const { return shearRetention.ConstGet(); }
  void SetShearRetention(const kmaC_MaterialOption& v) { shearRetention.Set(v, "shearRetention"); }
  void ClearShearRetention() { shearRetention.Clear(); }

 private:
  TypeEnm type = TypeEnm::STRESS;
  bool temperatureDependency = false;
  std::int32_t dependencies = 0;
  kmaC_MaterialTable table;
  kmaC_OptionSlot<kmaC_OptionClass::ShearRetention> shearRetention;
};

extern template class fw_PersistentClass<kmaC_BrittleCracking, kmaC_MaterialOption>;
