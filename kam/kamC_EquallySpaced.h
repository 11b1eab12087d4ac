#pragma once
// An amplitude given as values at a fixed time interval from a start time, optionally smoothed
// and baseline corrected.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"
#include "kam/kamC_BaselineCorrection.h"
#include "kam/kamC_Smoothing.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"

class kamC_EquallySpaced : public fw_PersistentClass<kamC_EquallySpaced, kamC_Amplitude> {
 public:
  enum class SmoothEnm : std::int32_t { SOLVER_DEFAULT = 0 };
  static constexpr omu_EnumLiteral kSmoothLiterals[] = {{"SOLVER_DEFAULT", 0}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SmoothEnm) { return kSmoothLiterals; }
  using BaselineHandle = cow_COW<kamC_BaselineCorrection, cow_Virtual<kamC_BaselineCorrection>>;

  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_EquallySpaced";
  static constexpr const char* kScriptName = "EquallySpacedAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 3); }

  // Persistent fields in write order; interval, begin and values are the fields of the first
  // layout, smoothing and baseline correction came later.
  static constexpr auto Fields() {
    using C = kamC_EquallySpaced;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"fixedInterval", 1, "fixedInterval", &C::fixedInterval},
                                                        fw_Field{"begin", 2, "begin", &C::begin},
                                                        fw_Field{"smooth", 4, "smooth", &C::smooth},
                                                        fw_Field{"data", 3, "data", &C::data},
                                                        fw_Field{"baselineCorrection", 5, "baselineCorrection", &C::baselineCorrection},
                                                    });
  }

  kamC_EquallySpaced() = default;
  explicit kamC_EquallySpaced(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetFixedInterval() const { return fixedInterval; }
  void SetFixedInterval(double v) { fixedInterval = v; }
  double GetBegin() const { return begin; }
  void SetBegin(double v) { begin = v; }
  // The smoothing fraction; kamC_kUnspecified for the solver's default.
  double GetSmooth() const { return smooth.value; }
  void SetSmooth(double v) { smooth.value = v; }
  const cow_List<double>& GetData() const { return data; }
  void SetData(const cow_List<double>& v) { data = v; }
  bool HasBaselineCorrection() const { return !baselineCorrection.IsNull(); }
  const kamC_BaselineCorrection& GetBaselineCorrection() const;
  void SetBaselineCorrection(const kamC_BaselineCorrection& v) { baselineCorrection = BaselineHandle(v); }
  void ClearBaselineCorrection() { baselineCorrection = BaselineHandle(); }
  const BaselineHandle& GetBaselineCorrectionHandle() const { return baselineCorrection; }

  const kamC_BaselineCorrection* FindBaselineCorrection() const override;
  kamC_BaselineCorrection* ModifyBaselineCorrection() override;

 private:
  double fixedInterval = 1.0;
  double begin = 0.0;
  kamC_Smoothing<SmoothEnm> smooth;
  cow_List<double> data{0.0, 1.0};
  BaselineHandle baselineCorrection;
};

extern template class fw_PersistentClass<kamC_EquallySpaced, kamC_Amplitude>;
