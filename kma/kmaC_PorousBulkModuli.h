#pragma once
// Bulk moduli of the solid grains and of the permeating fluid.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "kma/kmaC_MaterialTable.h"

class kmaC_PorousBulkModuli : public fw_PersistentClass<kmaC_PorousBulkModuli, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_PorousBulkModuli";
  static constexpr const char* kScriptName = "PorousBulkModuli";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::PorousBulkModuli); }

  static constexpr auto Fields() {
    using C = kmaC_PorousBulkModuli;
    return std::tuple{
        fw_Field{"temperatureDependency", 0, "temperatureDependency", &C::temperatureDependency},
        fw_Field{"table", 1, "table", &C::table},
    };
  }

  kmaC_PorousBulkModuli() = default;
  explicit kmaC_PorousBulkModuli(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String temperatureDependencyCmd() { return "temperatureDependency"; }
  static cow_String tableCmd() { return "table"; }
  static cow_String setValuesCmd() { return "setValues"; }

  bool GetTemperatureDependency() const { return temperatureDependency; }
  void SetTemperatureDependency(bool v) { temperatureDependency = v; }
  const kmaC_MaterialTable& GetTable() const { return table; }
  void SetTable(const kmaC_MaterialTable& v) { table = v; }

 private:
  bool temperatureDependency = false;
  kmaC_MaterialTable table;
};

extern template class fw_PersistentClass<kmaC_PorousBulkModuli, kmaC_MaterialOption>;
