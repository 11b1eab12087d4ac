#pragma once
// Gel swelling: radius, saturated radius, growth rate and volume fraction per row.
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_Gel : public kmaC_MaterialOption {
 public:

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Gel";
  static constexpr const char* kScriptName = "Gel";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Gel); }

  static constexpr auto Fields() {
    using C = kmaC_Gel;
    return std::tuple{
        fw_Field{"table", 0, "table", &C::table},
    };
  }

  kmaC_Gel() = default;
  explicit kmaC_Gel(const cls_ReadVisitor& r);
  kmaC_Gel* Copy() const override;
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& w) const override;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kmaC_Gel& o) const;
  bool operator!=(const kmaC_Gel& o) const { return !(*this == o); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override;

 private:
  kmaC_MaterialTable table;
};
