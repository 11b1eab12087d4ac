#pragma once
// Moisture-driven swelling strain against saturation.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_MoistureSwelling : public fw_PersistentClass<kmaC_MoistureSwelling, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_MoistureSwelling";
  static constexpr const char* kScriptName = "MoistureSwelling";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::MoistureSwelling); }

  static constexpr auto Fields() {
    using C = kmaC_MoistureSwelling;
    return std::tuple{
        fw_Field{"table", 0, "table", &C::table},
    };
  }

  kmaC_MoistureSwelling() = default;
  explicit kmaC_MoistureSwelling(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  const char* UnknownSubOptionMessage() const override { return "Unknown material option name for moisture swelling"; }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_MoistureSwelling, kmaC_MaterialOption>;
