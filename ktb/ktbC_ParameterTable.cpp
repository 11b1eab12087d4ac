#include "ktb/ktbC_ParameterTable.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_ParameterTable::ktbC_ParameterTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_ParameterTable::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_ParameterTable, mem_Allocated>;
