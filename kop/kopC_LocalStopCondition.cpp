#include "kop/kopC_LocalStopCondition.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_LocalStopCondition::kopC_LocalStopCondition(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_LocalStopCondition::AssertValid() const {
  kopC_Assert(!identifier.empty(), kopC_IdentifierMissing);
  kopC_Assert(referenceFactor != kopC_kUnset, kopC_ReferenceFactorMissing);
}

template class fw_PersistentClass<kopC_LocalStopCondition, kopC_StopCondition>;
