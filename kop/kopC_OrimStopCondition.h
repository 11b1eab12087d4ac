#pragma once
// A global stop condition: the run stops when a design response compares so with a value.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_StopCondition.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"

class kopC_OrimStopCondition : public fw_PersistentClass<kopC_OrimStopCondition, kopC_StopCondition> {
 public:
  using BaseClass = kopC_StopCondition;
  using RootClass = kopC_StopCondition;
  static constexpr const char* kClassName = "kopC_OrimStopCondition";
  static constexpr const char* kScriptName = "StopCondition";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 51); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_OrimStopCondition;
    return std::tuple{
        fw_Field{"designResponse", 0, "designResponse", &C::designResponse},
        fw_Field{"comparisonOperation", 1, "comparisonOperation", &C::comparisonOperation},
        fw_Field{"referenceValue", 2, "referenceValue", &C::referenceValue},
    };
  }

  kopC_OrimStopCondition() = default;
  explicit kopC_OrimStopCondition(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetDesignResponse() const { return designResponse; }
  void SetDesignResponse(const cow_String& v) { designResponse = v; }
  kopC_ComparisonEnm GetComparisonOperation() const { return comparisonOperation; }
  void SetComparisonOperation(kopC_ComparisonEnm v) { comparisonOperation = v; }
  double GetReferenceValue() const { return referenceValue; }
  void SetReferenceValue(double v) { referenceValue = v; }

 private:
  cow_String designResponse;
  kopC_ComparisonEnm comparisonOperation = kopC_ComparisonEnm::LESS_THAN_EQUAL;
  double referenceValue = 0.0;
};

extern template class fw_PersistentClass<kopC_OrimStopCondition, kopC_StopCondition>;
