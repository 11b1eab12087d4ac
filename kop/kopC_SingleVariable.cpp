#include "kop/kopC_SingleVariable.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SingleVariable::kopC_SingleVariable(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SingleVariable::AssertValid() const {
  kopC_Assert(!identifier.empty(), kopC_IdentifierMissing);
}

template class fw_PersistentClass<kopC_SingleVariable, kopC_Variable>;
