#pragma once
// Latent heat of phase changes: heat, solidus and liquidus temperatures per row.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_LatentHeat : public fw_PersistentClass<kmaC_LatentHeat, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_LatentHeat";
  static constexpr const char* kScriptName = "LatentHeat";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::LatentHeat); }

  static constexpr auto Fields() {
    using C = kmaC_LatentHeat;
    return std::tuple{
        fw_Field{"table", 0, "table", &C::table},
    };
  }

  kmaC_LatentHeat() = default;
  explicit kmaC_LatentHeat(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_LatentHeat, kmaC_MaterialOption>;
