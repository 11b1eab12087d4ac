#include "kop/kopC_CombinedVariable.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_CombinedVariable::kopC_CombinedVariable(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_CombinedVariable::AssertValid() const {
  kopC_Assert(!terms.empty(), kopC_AtLeastOneTerm);
}

template class fw_PersistentClass<kopC_CombinedVariable, kopC_Variable>;
