#pragma once
// An amplitude that the solution drives between a minimum and a maximum, starting from initial.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"

class kamC_SolutionDependent : public fw_PersistentClass<kamC_SolutionDependent, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_SolutionDependent";
  static constexpr const char* kScriptName = "SolutionDependentAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 8); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_SolutionDependent;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"initial", 1, "initial", &C::initial},
                                                        fw_Field{"minimum", 2, "minimum", &C::minimum},
                                                        fw_Field{"maximum", 3, "maximum", &C::maximum},
                                                    });
  }

  kamC_SolutionDependent() = default;
  explicit kamC_SolutionDependent(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetInitial() const { return initial; }
  void SetInitial(double v) { initial = v; }
  double GetMinimum() const { return minimum; }
  void SetMinimum(double v) { minimum = v; }
  double GetMaximum() const { return maximum; }
  void SetMaximum(double v) { maximum = v; }

 private:
  double initial = 1.0;
  double minimum = 0.1;
  double maximum = 1000.0;
};

extern template class fw_PersistentClass<kamC_SolutionDependent, kamC_Amplitude>;
