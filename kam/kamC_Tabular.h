#pragma once
// An amplitude given as a table of (time, amplitude) pairs, optionally smoothed and baseline
// corrected.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"
#include "kam/kamC_BaselineCorrection.h"
#include "kam/kamC_Smoothing.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"

class kamC_Tabular : public fw_PersistentClass<kamC_Tabular, kamC_Amplitude> {
 public:
  enum class SmoothEnm : std::int32_t { SOLVER_DEFAULT = 0 };
  static constexpr omu_EnumLiteral kSmoothLiterals[] = {{"SOLVER_DEFAULT", 0}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SmoothEnm) { return kSmoothLiterals; }
  using BaselineHandle = cow_COW<kamC_BaselineCorrection, cow_Virtual<kamC_BaselineCorrection>>;

  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_Tabular";
  static constexpr const char* kScriptName = "TabularAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 2); }

  // Persistent fields in write order; the table is the field of the first layout, smoothing and
  // baseline correction came later.
  static constexpr auto Fields() {
    using C = kamC_Tabular;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"smooth", 2, "smooth", &C::smooth},
                                                        fw_Field{"data", 1, "data", &C::data},
                                                        fw_Field{"baselineCorrection", 3, "baselineCorrection", &C::baselineCorrection},
                                                    });
  }

  kamC_Tabular() = default;
  explicit kamC_Tabular(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  // The smoothing fraction; kamC_kUnspecified for the solver's default.
  double GetSmooth() const { return smooth.value; }
  void SetSmooth(double v) { smooth.value = v; }
  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }
  bool HasBaselineCorrection() const { return !baselineCorrection.IsNull(); }
  const kamC_BaselineCorrection& GetBaselineCorrection() const;
  void SetBaselineCorrection(const kamC_BaselineCorrection& v) { baselineCorrection = BaselineHandle(v); }
  void ClearBaselineCorrection() { baselineCorrection = BaselineHandle(); }
  const BaselineHandle& GetBaselineCorrectionHandle() const { return baselineCorrection; }

  const kamC_BaselineCorrection* FindBaselineCorrection() const override;
  kamC_BaselineCorrection* ModifyBaselineCorrection() override;

 private:
  kamC_Smoothing<SmoothEnm> smooth;
  cow_2DArray<double> data{{0.0, 0.0}, {1.0, 1.0}};
  BaselineHandle baselineCorrection;
};

extern template class fw_PersistentClass<kamC_Tabular, kamC_Amplitude>;
