#pragma once
// A Butterworth filter: maximally flat in the pass band, of order 1 to 20.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kfl/kflC_Filter.h"

class kflC_ButterworthFilter : public fw_PersistentClass<kflC_ButterworthFilter, kflC_Filter> {
 public:
  using BaseClass = kflC_Filter;
  using RootClass = kflC_Filter;
  static constexpr const char* kClassName = "kflC_ButterworthFilter";
  static constexpr const char* kScriptName = "ButterworthFilter";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 2); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kflC_ButterworthFilter;
    return std::tuple{
        fw_Field{"cutoffFrequency", 0, "cutoffFrequency", &C::cutoffFrequency},
        fw_Field{"order", 1, "order", &C::order},
        fw_Field{"operation", 2, "operation", &C::operation},
        fw_Field{"limit", 3, "limit", &C::limit},
        fw_Field{"halt", 4, "halt", &C::halt},
    };
  }

  kflC_ButterworthFilter() = default;
  explicit kflC_ButterworthFilter(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  double GetCutoffFrequency() const { return cutoffFrequency; }
  void SetCutoffFrequency(double v) { cutoffFrequency = v; }
  std::int32_t GetOrder() const { return order; }
  void SetOrder(std::int32_t v) { order = v; }

};

extern template class fw_PersistentClass<kflC_ButterworthFilter, kflC_Filter>;
