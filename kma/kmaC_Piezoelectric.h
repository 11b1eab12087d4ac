#pragma once
// Piezoelectric coupling given as stress or strain coefficients.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Piezoelectric : public fw_PersistentClass<kmaC_Piezoelectric, kmaC_MaterialOption> {
 public:
  enum class TypeEnm : std::int32_t { STRESS = 0, STRAIN = 1 };
  static constexpr omu_EnumLiteral kTypeLiterals[] = {{"STRESS", 0}, {"STRAIN", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TypeEnm) { return kTypeLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Piezoelectric";
  static constexpr const char* kScriptName = "Piezoelectric";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Piezoelectric); }

  static constexpr auto Fields() {
    using C = kmaC_Piezoelectric;
    return std::tuple{
        fw_Field{"type", 0, "type", &C::type},
        fw_Field{"table", 1, "table", &C::table},
    };
  }

  kmaC_Piezoelectric() = default;
  explicit kmaC_Piezoelectric(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String typeCmd() { return "type"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  TypeEnm GetType() const { return type; }
  void SetType(TypeEnm v) { type = omu_PrimEnum<TypeEnm, 1>(v).GetValue(); }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  TypeEnm type = TypeEnm::STRESS;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Piezoelectric, kmaC_MaterialOption>;
