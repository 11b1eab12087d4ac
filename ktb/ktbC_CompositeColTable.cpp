#include "ktb/ktbC_CompositeColTable.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_CompositeColTable::ktbC_CompositeColTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_CompositeColTable::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

const ktbC_DataColumn* ktbC_CompositeColTable::getColumnById(std::int32_t id) const {
  for (const auto& h : columns.Items())
    if (h.Get().GetColId() == id) return &h.Get();
  return nullptr;
}

template class fw_PersistentClass<ktbC_CompositeColTable, mem_Allocated>;
