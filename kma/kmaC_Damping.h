#pragma once
// Rayleigh and structural damping factors of a material.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_Damping : public fw_PersistentClass<kmaC_Damping, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Damping";
  static constexpr const char* kScriptName = "Damping";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Damping); }

  static constexpr auto Fields() {
    using C = kmaC_Damping;
    return std::tuple{
        fw_Field{"alpha", 0, "alpha", &C::alpha},
        fw_Field{"beta", 1, "beta", &C::beta},
        fw_Field{"composite", 2, "composite", &C::composite},
        fw_Field{"structural", 3, "structural", &C::structural},
    };
  }

  kmaC_Damping() = default;
  explicit kmaC_Damping(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String alphaCmd() { return "alpha"; }
  static cow_String betaCmd() { return "beta"; }
  static cow_String compositeCmd() { return "composite"; }
  static cow_String structuralCmd() { return "structural"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetAlpha() const { return alpha; }
  void SetAlpha(double v) { alpha = v; }
  double GetBeta() const { return beta; }
  void SetBeta(double v) { beta = v; }
  double GetComposite() const { return composite; }
  void SetComposite(double v) { composite = v; }
  double GetStructural() const { return structural; }
  void SetStructural(double v) { structural = v; }

 private:
  double alpha = 0.0;
  double beta = 0.0;
  double composite = 0.0;
  double structural = 0.0;
};

extern template class fw_PersistentClass<kmaC_Damping, kmaC_MaterialOption>;
