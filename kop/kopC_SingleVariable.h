#pragma once
// A variable read from one result identifier over a region.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_Variable.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kopC_SingleVariable : public fw_PersistentClass<kopC_SingleVariable, kopC_Variable> {
 public:
  using BaseClass = kopC_Variable;
  using RootClass = kopC_Variable;
  static constexpr const char* kClassName = "kopC_SingleVariable";
  static constexpr const char* kScriptName = "SingleVariable";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 61); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SingleVariable;
    return std::tuple{
        fw_Field{"identifier", 0, "identifier", &C::identifier},
        fw_Field{"operation", 1, "operation", &C::operation},
        fw_Field{"region", 2, "region", &C::region},
    };
  }

  kopC_SingleVariable() = default;
  explicit kopC_SingleVariable(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetIdentifier() const { return identifier; }
  void SetIdentifier(const cow_String& v) { identifier = v; }
  kopC_VariableOperationEnm GetOperation() const { return operation; }
  void SetOperation(kopC_VariableOperationEnm v) { operation = v; }
  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }

 private:
  cow_String identifier;
  kopC_VariableOperationEnm operation = kopC_VariableOperationEnm::MAXIMUM;
  rgnC_Region region;
};

extern template class fw_PersistentClass<kopC_SingleVariable, kopC_Variable>;
