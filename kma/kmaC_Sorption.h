#pragma once
// Sorption of a partially saturated porous medium: absorption law and data.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Sorption : public fw_PersistentClass<kmaC_Sorption, kmaC_MaterialOption> {
 public:
  enum class LawAbsorptionEnm : std::int32_t { TABULAR = 0, LOG = 1 };
  static constexpr omu_EnumLiteral kLawAbsorptionLiterals[] = {{"TABULAR", 0}, {"LOG", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(LawAbsorptionEnm) { return kLawAbsorptionLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Sorption";
  static constexpr const char* kScriptName = "Sorption";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Sorption); }

  static constexpr auto Fields() {
    using C = kmaC_Sorption;
    return std::tuple{
        fw_Field{"lawAbsorption", 0, "lawAbsorption", &C::lawAbsorption},
        fw_Field{"table", 1, "table", &C::table},
    };
  }

  kmaC_Sorption() = default;
  explicit kmaC_Sorption(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String lawAbsorptionCmd() { return "lawAbsorption"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  LawAbsorptionEnm GetLawAbsorption() const { return lawAbsorption; }
  void SetLawAbsorption(LawAbsorptionEnm v) { lawAbsorption = omu_PrimEnum<LawAbsorptionEnm, 1>(v).GetValue(); }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  LawAbsorptionEnm lawAbsorption = LawAbsorptionEnm::TABULAR;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_Sorption, kmaC_MaterialOption>;
