#pragma once
// A Chebyshev type I filter: a steeper roll-off than a Butterworth filter of the same order,
// bought with a ripple in the pass band whose size the ripple factor sets.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kfl/kflC_Filter.h"

class kflC_Chebyshev1Filter : public fw_PersistentClass<kflC_Chebyshev1Filter, kflC_Filter> {
 public:
  using BaseClass = kflC_Filter;
  using RootClass = kflC_Filter;
  static constexpr const char* kClassName = "kflC_Chebyshev1Filter";
  static constexpr const char* kScriptName = "Chebyshev1Filter";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 3); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kflC_Chebyshev1Filter;
    return std::tuple{
        fw_Field{"cutoffFrequency", 0, "cutoffFrequency", &C::cutoffFrequency},
        fw_Field{"order", 1, "order", &C::order},
        fw_Field{"rippleFactor", 2, "rippleFactor", &C::rippleFactor},
        fw_Field{"operation", 3, "operation", &C::operation},
        fw_Field{"limit", 4, "limit", &C::limit},
        fw_Field{"halt", 5, "halt", &C::halt},
    };
  }

  kflC_Chebyshev1Filter() = default;
  explicit kflC_Chebyshev1Filter(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetCutoffFrequency() const { return cutoffFrequency; }
  void SetCutoffFrequency(double v) { cutoffFrequency = v; }
  std::int32_t GetOrder() const { return order; }
  void SetOrder(std::int32_t v) { order = v; }
  double GetRippleFactor() const { return rippleFactor; }
  void SetRippleFactor(double v) { rippleFactor = v; }

 private:
  double rippleFactor = 0.225;  // about a quarter of a decibel
};

extern template class fw_PersistentClass<kflC_Chebyshev1Filter, kflC_Filter>;
