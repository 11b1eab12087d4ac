#include "ktb/ktbC_CompositeColTable.h"

#include "framework/fw_FieldTable.h"

ktbC_CompositeColTable::ktbC_CompositeColTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_CompositeColTable::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_CompositeColTable* ktbC_CompositeColTable::Copy() const { return new ktbC_CompositeColTable(*this); }
bool ktbC_CompositeColTable::operator==(const ktbC_CompositeColTable& o) const { return fw_EqualFields(*this, o); }
void ktbC_CompositeColTable::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_CompositeColTable>(r); }
void ktbC_CompositeColTable::CowDtor(void* p) { fw_CowDtor<ktbC_CompositeColTable>(p); }

void ktbC_CompositeColTable::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

const ktbC_DataColumn* ktbC_CompositeColTable::getColumnById(std::int32_t id) const {
  for (const auto& h : columns.Items())
    if (h.Get().GetColId() == id) return &h.Get();
  return nullptr;
}
