#pragma once
// An exponential decay: initial + maximum exp(-(t - start) / decayTime) from the start on.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"

class kamC_Decay : public fw_PersistentClass<kamC_Decay, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_Decay";
  static constexpr const char* kScriptName = "DecayAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 6); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_Decay;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"initial", 1, "initial", &C::initial},
                                                        fw_Field{"maximum", 2, "maximum", &C::maximum},
                                                        fw_Field{"start", 3, "start", &C::start},
                                                        fw_Field{"decayTime", 4, "decayTime", &C::decayTime},
                                                    });
  }

  kamC_Decay() = default;
  explicit kamC_Decay(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetInitial() const { return initial; }
  void SetInitial(double v) { initial = v; }
  double GetMaximum() const { return maximum; }
  void SetMaximum(double v) { maximum = v; }
  double GetStart() const { return start; }
  void SetStart(double v) { start = v; }
  double GetDecayTime() const { return decayTime; }
  void SetDecayTime(double v) { decayTime = v; }

 private:
  double initial = 0.0;
  double maximum = 1.0;
  double start = 0.0;
  double decayTime = 1.0;
};

extern template class fw_PersistentClass<kamC_Decay, kamC_Amplitude>;
