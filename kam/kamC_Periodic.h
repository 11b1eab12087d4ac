#pragma once
// A Fourier series in time: a_0 plus, per row of the table, A cos(n w (t - start)) + B sin(n w (t - start)),
// with w the circular frequency.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"
#include "platform/base/cow_2DArray.h"

class kamC_Periodic : public fw_PersistentClass<kamC_Periodic, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_Periodic";
  static constexpr const char* kScriptName = "PeriodicAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 4); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_Periodic;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"frequency", 1, "frequency", &C::frequency},
                                                        fw_Field{"start", 2, "start", &C::start},
                                                        fw_Field{"a_0", 3, "a_0", &C::a_0},
                                                        fw_Field{"data", 4, "data", &C::data},
                                                    });
  }

  kamC_Periodic() = default;
  explicit kamC_Periodic(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetFrequency() const { return frequency; }
  void SetFrequency(double v) { frequency = v; }
  double GetStart() const { return start; }
  void SetStart(double v) { start = v; }
  double GetA_0() const { return a_0; }
  void SetA_0(double v) { a_0 = v; }
  const cow_2DArray<double>& GetData() const { return data; }
  void SetData(const cow_2DArray<double>& v) { data = v; }

 private:
  double frequency = 1.0;
  double start = 0.0;
  double a_0 = 0.0;
  cow_2DArray<double> data{{1.0, 0.0}};
};

extern template class fw_PersistentClass<kamC_Periodic, kamC_Amplitude>;
