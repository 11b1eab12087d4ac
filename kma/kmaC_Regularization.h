#pragma once
// Regularization of rate-dependent data: the tolerance and the strain rate scale.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"
#include "platform/base/omu_PrimEnum.h"

class kmaC_Regularization : public fw_PersistentClass<kmaC_Regularization, kmaC_MaterialOption> {
 public:
  enum class StrainRateRegularizationEnm : std::int32_t { LOGARITHMIC = 0, LINEAR = 1 };
  static constexpr omu_EnumLiteral kStrainRateRegularizationLiterals[] = {{"LOGARITHMIC", 0}, {"LINEAR", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(StrainRateRegularizationEnm) { return kStrainRateRegularizationLiterals; }

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Regularization";
  static constexpr const char* kScriptName = "Regularization";
  static constexpr int kVersion = 2002;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Regularization); }

  static constexpr auto Fields() {
    using C = kmaC_Regularization;
    return std::tuple{
        fw_Field{"rtol", 0, "rtol", &C::rtol},
        fw_Field{"strainRateRegularization", 1, "strainRateRegularization", &C::strainRateRegularization},
    };
  }

  kmaC_Regularization() = default;
  explicit kmaC_Regularization(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String rtolCmd() { return "rtol"; }
  static cow_String strainRateRegularizationCmd() { return "strainRateRegularization"; }
  static cow_String setValuesCmd() { return "setValues"; }

  double GetRtol() const { return rtol; }
  void SetRtol(double v) { rtol = v; }
  StrainRateRegularizationEnm GetStrainRateRegularization() const { return strainRateRegularization; }
  void SetStrainRateRegularization(StrainRateRegularizationEnm v) { strainRateRegularization = omu_PrimEnum<StrainRateRegularizationEnm, 1>(v).GetValue(); }

 private:
  double rtol = 0.03;
  StrainRateRegularizationEnm strainRateRegularization = StrainRateRegularizationEnm::LOGARITHMIC;
};

extern template class fw_PersistentClass<kmaC_Regularization, kmaC_MaterialOption>;
