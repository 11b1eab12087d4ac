#include "kop/kopC_OrimStopCondition.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_OrimStopCondition::kopC_OrimStopCondition(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_OrimStopCondition::AssertValid() const {
  kopC_Assert(!designResponse.empty(), kopC_IdentifierMissing);
}

template class fw_PersistentClass<kopC_OrimStopCondition, kopC_StopCondition>;
