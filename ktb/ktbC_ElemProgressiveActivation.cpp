#include "ktb/ktbC_ElemProgressiveActivation.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_ElemProgressiveActivation::ktbC_ElemProgressiveActivation(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_ElemProgressiveActivation::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_ElemProgressiveActivation, mem_Allocated>;
