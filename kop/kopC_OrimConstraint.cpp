#include "kop/kopC_OrimConstraint.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_OrimConstraint::kopC_OrimConstraint(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// A constraint names its design response; whether the task holds it is the task's test.
void kopC_OrimConstraint::AssertValid() const {
  kopC_Assert(!designResponse.empty(), kopC_ResponseNotUsableWithConstraint);
}

template class fw_PersistentClass<kopC_OrimConstraint, kopC_Constraint>;
