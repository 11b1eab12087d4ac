#pragma once
// The ORNL constitutive rules for austenitic steels in a plastic option: the saturation rate of the
// kinematic shift and whether the cyclic hardening is reset at each reversal.
#include "kma/kmaC_MaterialOption.h"

class kmaC_Ornl : public kmaC_MaterialOption {
 public:

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Ornl";
  static constexpr const char* kScriptName = "Ornl";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Ornl); }

  static constexpr auto Fields() {
    using C = kmaC_Ornl;
    return std::tuple{
        fw_Field{"saturationRateParameter", 0, "saturationRateParameter", &C::saturationRateParameter},
        fw_Field{"applyRateFactor", 1, "applyRateFactor", &C::applyRateFactor},
        fw_Field{"resetHardening", 2, "resetHardening", &C::resetHardening},
    };
  }

  kmaC_Ornl() = default;
  explicit kmaC_Ornl(const cls_ReadVisitor& r);
  kmaC_Ornl* Copy() const override;
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& w) const override;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kmaC_Ornl& o) const;
  bool operator!=(const kmaC_Ornl& o) const { return !(*this == o); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String saturationRateParameterCmd() { return "saturationRateParameter"; }
  static cow_String applyRateFactorCmd() { return "applyRateFactor"; }
  static cow_String resetHardeningCmd() { return "resetHardening"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetSaturationRateParameter() const { return saturationRateParameter; }
  void SetSaturationRateParameter(double v) { saturationRateParameter = v; }
  bool GetApplyRateFactor() const { return applyRateFactor; }
  void SetApplyRateFactor(bool v) { applyRateFactor = v; }
  bool GetResetHardening() const { return resetHardening; }
  void SetResetHardening(bool v) { resetHardening = v; }

 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override;

 private:
  double saturationRateParameter = 0.2;
  bool applyRateFactor = false;
  bool resetHardening = false;
};
