#pragma once
// An operator filter: no smoothing, only an operation on the output (its minimum, maximum or
// absolute value), compared with the limit when one is given.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kfl/kflC_Filter.h"

class kflC_OperatorFilter : public fw_PersistentClass<kflC_OperatorFilter, kflC_Filter> {
 public:
  using BaseClass = kflC_Filter;
  using RootClass = kflC_Filter;
  static constexpr const char* kClassName = "kflC_OperatorFilter";
  static constexpr const char* kScriptName = "OperatorFilter";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 5); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kflC_OperatorFilter;
    return std::tuple{
        fw_Field{"operation", 0, "operation", &C::operation},
        fw_Field{"limit", 1, "limit", &C::limit},
        fw_Field{"halt", 2, "halt", &C::halt},
    };
  }

  kflC_OperatorFilter() = default;
  explicit kflC_OperatorFilter(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

};

extern template class fw_PersistentClass<kflC_OperatorFilter, kflC_Filter>;
