#pragma once
// A Butterworth filter: maximally flat in the pass band, of order 1 to 20.
#include <cstdint>

#include "kfl/kflC_Filter.h"

class kflC_ButterworthFilter : public kflC_Filter {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kflC_ButterworthFilter* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kflC_ButterworthFilter& o) const;
  bool operator!=(const kflC_ButterworthFilter& o) const { return !(*this == o); }

  double GetCutoffFrequency() const { return cutoffFrequency; }
  void SetCutoffFrequency(double v) { cutoffFrequency = v; }
  std::int32_t GetOrder() const { return order; }
  void SetOrder(std::int32_t v) { order = v; }

 protected:
  bool SameAs(const kflC_Filter& o) const override;
};
