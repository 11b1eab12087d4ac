#include "ktb/ktbC_PropertyTableData.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_PropertyTableData::ktbC_PropertyTableData(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_PropertyTableData::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_PropertyTableData, mem_Allocated>;
