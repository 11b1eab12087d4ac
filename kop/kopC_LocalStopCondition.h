#pragma once
// A local stop condition of a shape task: a result compared with its value in a reference design cycle.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_StopCondition.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kopC_LocalStopCondition : public fw_PersistentClass<kopC_LocalStopCondition, kopC_StopCondition> {
 public:
  using BaseClass = kopC_StopCondition;
  using RootClass = kopC_StopCondition;
  static constexpr const char* kClassName = "kopC_LocalStopCondition";
  static constexpr const char* kScriptName = "LocalStopCondition";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 52); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_LocalStopCondition;
    return std::tuple{
        fw_Field{"identifier", 0, "identifier", &C::identifier},
        fw_Field{"identifierOperation", 1, "identifierOperation", &C::identifierOperation},
        fw_Field{"comparisonOperation", 2, "comparisonOperation", &C::comparisonOperation},
        fw_Field{"referenceDesignCycle", 3, "referenceDesignCycle", &C::referenceDesignCycle},
        fw_Field{"referenceFactor", 4, "referenceFactor", &C::referenceFactor},
        fw_Field{"referenceOperation", 5, "referenceOperation", &C::referenceOperation},
        fw_Field{"referenceIteration", 6, "referenceIteration", &C::referenceIteration},
        fw_Field{"region", 7, "region", &C::region},
    };
  }

  kopC_LocalStopCondition() = default;
  explicit kopC_LocalStopCondition(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetIdentifier() const { return identifier; }
  void SetIdentifier(const cow_String& v) { identifier = v; }
  kopC_VariableOperationEnm GetIdentifierOperation() const { return identifierOperation; }
  void SetIdentifierOperation(kopC_VariableOperationEnm v) { identifierOperation = v; }
  kopC_ComparisonEnm GetComparisonOperation() const { return comparisonOperation; }
  void SetComparisonOperation(kopC_ComparisonEnm v) { comparisonOperation = v; }
  std::int32_t GetReferenceDesignCycle() const { return referenceDesignCycle; }
  void SetReferenceDesignCycle(std::int32_t v) { referenceDesignCycle = v; }
  double GetReferenceFactor() const { return referenceFactor; }
  void SetReferenceFactor(double v) { referenceFactor = v; }
  kopC_VariableOperationEnm GetReferenceOperation() const { return referenceOperation; }
  void SetReferenceOperation(kopC_VariableOperationEnm v) { referenceOperation = v; }
  std::int32_t GetReferenceIteration() const { return referenceIteration; }
  void SetReferenceIteration(std::int32_t v) { referenceIteration = v; }
  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 private:
  cow_String identifier;
  kopC_VariableOperationEnm identifierOperation = kopC_VariableOperationEnm::MAXIMUM;
  kopC_ComparisonEnm comparisonOperation = kopC_ComparisonEnm::LESS_THAN_EQUAL;
  std::int32_t referenceDesignCycle = 1;
  double referenceFactor = kopC_kUnset;
  kopC_VariableOperationEnm referenceOperation = kopC_VariableOperationEnm::MAXIMUM;
  std::int32_t referenceIteration = 1;
  rgnC_Region region;
};

extern template class fw_PersistentClass<kopC_LocalStopCondition, kopC_StopCondition>;
