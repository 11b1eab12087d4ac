#pragma once
// An amplitude that ramps between (time, amplitude) points with a smooth step, so that its first
// and second derivatives vanish at every point.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"
#include "kam/kamC_TableChecks.h"
#include "platform/base/cow_2DArray.h"

class kamC_SmoothStep : public fw_PersistentClass<kamC_SmoothStep, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_SmoothStep";
  static constexpr const char* kScriptName = "SmoothStepAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 7); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_SmoothStep;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"data", 1, "data", &C::data},
                                                    });
  }

  kamC_SmoothStep() = default;
  explicit kamC_SmoothStep(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }

 private:
  cow_2DArray<double> data{{0.0, 0.0}, {1.0, 1.0}};
};

extern template class fw_PersistentClass<kamC_SmoothStep, kamC_Amplitude>;
