#include "ktb/ktbC_DataColumn.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_DataColumn::ktbC_DataColumn(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_DataColumn::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

std::size_t ktbC_DataColumn::Size() const {
  switch (colType) {
    case colTypeEnm::INTEGER: return column_int.size();
    case colTypeEnm::STRING: return column_str.size();
    default: return column_float.size();
  }
}

template class fw_PersistentClass<ktbC_DataColumn, mem_Allocated>;
