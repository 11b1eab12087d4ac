#include "kfd/kfdC_ExpressionField.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kfd/kfdC_assert.h"

kfdC_ExpressionField::kfdC_ExpressionField(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The names the expression uses are not judged here: that takes the kind of the coordinate system,
// which the host resolves and hands to kfdC_CheckExpressionVars.
void kfdC_ExpressionField::AssertValid() const {
  AssertAnalyticalValid();
  kfdC_Assert(!expression.empty(), kfdC_NoExpression);
}

template class fw_PersistentClass<kfdC_ExpressionField, kfdC_AnalyticalField>;
