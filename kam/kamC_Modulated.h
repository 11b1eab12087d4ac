#pragma once
// A modulated sine: initial + magnitude sin(frequency1 (t - start)) sin(frequency2 (t - start)).
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"

class kamC_Modulated : public fw_PersistentClass<kamC_Modulated, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_Modulated";
  static constexpr const char* kScriptName = "ModulatedAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 5); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_Modulated;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"initial", 1, "initial", &C::initial},
                                                        fw_Field{"magnitude", 2, "magnitude", &C::magnitude},
                                                        fw_Field{"start", 3, "start", &C::start},
                                                        fw_Field{"frequency1", 4, "frequency1", &C::frequency1},
                                                        fw_Field{"frequency2", 5, "frequency2", &C::frequency2},
                                                    });
  }

  kamC_Modulated() = default;
  explicit kamC_Modulated(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetInitial() const { return initial; }
  void SetInitial(double v) { initial = v; }
  double GetMagnitude() const { return magnitude; }
  void SetMagnitude(double v) { magnitude = v; }
  double GetStart() const { return start; }
  void SetStart(double v) { start = v; }
  double GetFrequency1() const { return frequency1; }
  void SetFrequency1(double v) { frequency1 = v; }
  double GetFrequency2() const { return frequency2; }
  void SetFrequency2(double v) { frequency2 = v; }

 private:
  double initial = 0.0;
  double magnitude = 1.0;
  double start = 0.0;
  double frequency1 = 1.0;
  double frequency2 = 1.0;
};

extern template class fw_PersistentClass<kamC_Modulated, kamC_Amplitude>;
