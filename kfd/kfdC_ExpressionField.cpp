#include "kfd/kfdC_ExpressionField.h"

#include "framework/fw_FieldTable.h"
#include "kfd/kfdC_assert.h"

kfdC_ExpressionField::kfdC_ExpressionField(const cls_ReadVisitor& reader) : kfdC_AnalyticalField(reader) { fw_ReadFields(*this, reader); }
void kfdC_ExpressionField::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kfdC_ExpressionField* kfdC_ExpressionField::Copy() const { return new kfdC_ExpressionField(*this); }
bool kfdC_ExpressionField::operator==(const kfdC_ExpressionField& o) const { return fw_EqualFields(*this, o); }
bool kfdC_ExpressionField::SameAs(const kfdC_Field& o) const { return *this == static_cast<const kfdC_ExpressionField&>(o); }
void kfdC_ExpressionField::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kfdC_ExpressionField>(r); }
void kfdC_ExpressionField::CowDtor(void* p) { fw_CowDtor<kfdC_ExpressionField>(p); }

// The names the expression uses are not judged here: that takes the kind of the coordinate system,
// which the host resolves and hands to kfdC_CheckExpressionVars.
void kfdC_ExpressionField::AssertValid() const {
  AssertAnalyticalValid();
  kfdC_Assert(!expression.empty(), kfdC_NoExpression);
}
