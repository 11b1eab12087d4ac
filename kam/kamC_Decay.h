#pragma once
// An exponential decay: initial + maximum exp(-(t - start) / decayTime) from the start on.
#include "kam/kamC_Amplitude.h"

class kamC_Decay : public kamC_Amplitude {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kamC_Decay* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kamC_Decay& o) const;
  bool operator!=(const kamC_Decay& o) const { return !(*this == o); }

  double GetInitial() const { return initial; }
  void SetInitial(double v) { initial = v; }
  double GetMaximum() const { return maximum; }
  void SetMaximum(double v) { maximum = v; }
  double GetStart() const { return start; }
  void SetStart(double v) { start = v; }
  double GetDecayTime() const { return decayTime; }
  void SetDecayTime(double v) { decayTime = v; }

 protected:
  bool SameAs(const kamC_Amplitude& o) const override;

 private:
  double initial = 0.0;
  double maximum = 1.0;
  double start = 0.0;
  double decayTime = 1.0;
};
