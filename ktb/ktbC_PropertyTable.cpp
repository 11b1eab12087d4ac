#include "ktb/ktbC_PropertyTable.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_PropertyTable::ktbC_PropertyTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_PropertyTable::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_PropertyTable, mem_Allocated>;
