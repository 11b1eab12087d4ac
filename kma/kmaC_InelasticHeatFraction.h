#pragma once
// Fraction of inelastic dissipation that becomes heat.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_InelasticHeatFraction : public fw_PersistentClass<kmaC_InelasticHeatFraction, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_InelasticHeatFraction";
  static constexpr const char* kScriptName = "InelasticHeatFraction";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::InelasticHeatFraction); }

  static constexpr auto Fields() {
    using C = kmaC_InelasticHeatFraction;
    return std::tuple{
        fw_Field{"fraction", 0, "fraction", &C::fraction},
    };
  }

  kmaC_InelasticHeatFraction() = default;
  explicit kmaC_InelasticHeatFraction(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String fractionCmd() { return "fraction"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetFraction() const { return fraction; }
  void SetFraction(double v) { fraction = v; }

 private:
  double fraction = 0.9;
};

extern template class fw_PersistentClass<kmaC_InelasticHeatFraction, kmaC_MaterialOption>;
