#pragma once
// An analytical field whose value is an expression in the coordinates of its system: X, Y, Z in a
// rectangular one, R, Th, Z in a cylindrical one, R, Th, P in a spherical one.
#include <cstdint>

#include "kfd/kfdC_AnalyticalField.h"
#include "framework/fw_Field.h"

class kfdC_ExpressionField : public kfdC_AnalyticalField {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kfdC_ExpressionField* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kfdC_ExpressionField& o) const;
  bool operator!=(const kfdC_ExpressionField& o) const { return !(*this == o); }

  const cow_String& GetExpression() const { return expression; }
  void SetExpression(const cow_String& v) { expression = v; }

 protected:
  bool SameAs(const kfdC_Field& o) const override;

 private:
  cow_String expression;
};
