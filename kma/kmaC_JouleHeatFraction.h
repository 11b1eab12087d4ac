#pragma once
// Fraction of electric energy dissipated as heat.
#include "kma/kmaC_MaterialOption.h"

class kmaC_JouleHeatFraction : public kmaC_MaterialOption {
 public:

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_JouleHeatFraction";
  static constexpr const char* kScriptName = "JouleHeatFraction";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::JouleHeatFraction); }

  static constexpr auto Fields() {
    using C = kmaC_JouleHeatFraction;
    return std::tuple{
        fw_Field{"fraction", 0, "fraction", &C::fraction},
    };
  }

  kmaC_JouleHeatFraction() = default;
  explicit kmaC_JouleHeatFraction(const cls_ReadVisitor& r);
  kmaC_JouleHeatFraction* Copy() const override;
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& w) const override;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kmaC_JouleHeatFraction& o) const;
  bool operator!=(const kmaC_JouleHeatFraction& o) const { return !(*this == o); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String fractionCmd() { return "fraction"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetFraction() const { return fraction; }
  void SetFraction(double v) { fraction = v; }

 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override;

 private:
  double fraction = 1.0;
};
