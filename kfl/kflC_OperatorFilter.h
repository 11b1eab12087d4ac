#pragma once
// An operator filter: no smoothing, only an operation on the output (its minimum, maximum or
// absolute value), compared with the limit when one is given.
#include <cstdint>

#include "kfl/kflC_Filter.h"

class kflC_OperatorFilter : public kflC_Filter {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kflC_OperatorFilter* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kflC_OperatorFilter& o) const;
  bool operator!=(const kflC_OperatorFilter& o) const { return !(*this == o); }

 protected:
  bool SameAs(const kflC_Filter& o) const override;
};
