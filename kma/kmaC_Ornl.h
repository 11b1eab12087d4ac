#pragma once
// The ORNL constitutive rules for austenitic steels in a plastic option: the saturation rate of the
// kinematic shift and whether the cyclic hardening is reset at each reversal.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_Ornl : public fw_PersistentClass<kmaC_Ornl, kmaC_MaterialOption> {
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
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

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

 private:
  double saturationRateParameter = 0.2;
  bool applyRateFactor = false;
  bool resetHardening = false;
};

extern template class fw_PersistentClass<kmaC_Ornl, kmaC_MaterialOption>;
