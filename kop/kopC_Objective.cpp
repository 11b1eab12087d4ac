#include "kop/kopC_Objective.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"
#include "kop/kopC_Enums.h"

kopC_Objective::kopC_Objective(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void kopC_Objective::AssertValid() const {
  kopC_Assert(referenceValueVariable.empty(), kopC_ReferenceValueVariable);
}

template class fw_PersistentClass<kopC_Objective, mem_Allocated>;
