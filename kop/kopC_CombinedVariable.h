#pragma once
// A variable combined from other variables.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_Variable.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/base/cow_List.h"

class kopC_CombinedVariable : public fw_PersistentClass<kopC_CombinedVariable, kopC_Variable> {
 public:
  using BaseClass = kopC_Variable;
  using RootClass = kopC_Variable;
  static constexpr const char* kClassName = "kopC_CombinedVariable";
  static constexpr const char* kScriptName = "CombinedVariable";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 62); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_CombinedVariable;
    return std::tuple{
        fw_Field{"terms", 0, "terms", &C::terms},
        fw_Field{"method", 1, "method", &C::method},
    };
  }

  kopC_CombinedVariable() = default;
  explicit kopC_CombinedVariable(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<cow_String>& GetTerms() const { return terms; }
  void SetTerms(const cow_List<cow_String>& v) { terms = v; }
  kopC_CombinedTermRequestMethodEnm GetMethod() const { return method; }
  void SetMethod(kopC_CombinedTermRequestMethodEnm v) { method = v; }

 private:
  cow_List<cow_String> terms;
  kopC_CombinedTermRequestMethodEnm method = kopC_CombinedTermRequestMethodEnm::ADD;
};

extern template class fw_PersistentClass<kopC_CombinedVariable, kopC_Variable>;
