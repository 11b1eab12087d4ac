#pragma once
// A variable combined from other variables.
#include <cstdint>
#include <tuple>

#include "kop/kopC_Variable.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/base/cow_List.h"

class kopC_CombinedVariable : public kopC_Variable {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kopC_CombinedVariable* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kopC_CombinedVariable& o) const;
  bool operator!=(const kopC_CombinedVariable& o) const { return !(*this == o); }

  const cow_List<cow_String>& GetTerms() const { return terms; }
  void SetTerms(const cow_List<cow_String>& v) { terms = v; }
  kopC_CombinedTermRequestMethodEnm GetMethod() const { return method; }
  void SetMethod(kopC_CombinedTermRequestMethodEnm v) { method = v; }

 protected:
  bool SameAs(const kopC_Variable& o) const override;

 private:
  cow_List<cow_String> terms;
  kopC_CombinedTermRequestMethodEnm method = kopC_CombinedTermRequestMethodEnm::ADD;
};
