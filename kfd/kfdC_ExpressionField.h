#pragma once
// An analytical field whose value is an expression in the coordinates of its system: X, Y, Z in a
// rectangular one, R, Th, Z in a cylindrical one, R, Th, P in a spherical one.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kfd/kfdC_AnalyticalField.h"
#include "framework/fw_Field.h"

class kfdC_ExpressionField : public fw_PersistentClass<kfdC_ExpressionField, kfdC_AnalyticalField> {
 public:
  using BaseClass = kfdC_AnalyticalField;
  using RootClass = kfdC_Field;
  static constexpr const char* kClassName = "kfdC_ExpressionField";
  static constexpr const char* kScriptName = "ExpressionField";
  static constexpr int kVersion = 810;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 3); }
  static constexpr const char* kLabel = "Expression field";
  static const char* constructorCmd() { return kScriptName; }
  static const char* expressionCmd() { return "expression"; }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kfdC_ExpressionField;
    return std::tuple{
        fw_Field{"csys", 0, "csys", &C::csys},
        fw_Field{"csysPartName", 3, "csysPartName", &C::csysPartName},
        fw_Field{"csysType", 1, "csysType", &C::csysType},
        fw_Field{"expression", 2, "expression", &C::expression},
    };
  }

  kfdC_ExpressionField() = default;
  explicit kfdC_ExpressionField(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetExpression() const { return expression; }
  void SetExpression(const cow_String& v) { expression = v; }

 private:
  cow_String expression;
};

extern template class fw_PersistentClass<kfdC_ExpressionField, kfdC_AnalyticalField>;
