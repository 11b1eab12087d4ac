#include "ktb/ktbC_ActivateElem.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_ActivateElem::ktbC_ActivateElem(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_ActivateElem::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_ActivateElem, mem_Allocated>;
