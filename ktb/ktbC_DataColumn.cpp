#include "ktb/ktbC_DataColumn.h"

#include "framework/fw_FieldTable.h"

ktbC_DataColumn::ktbC_DataColumn(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_DataColumn::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_DataColumn* ktbC_DataColumn::Copy() const { return new ktbC_DataColumn(*this); }
bool ktbC_DataColumn::operator==(const ktbC_DataColumn& o) const { return fw_EqualFields(*this, o); }
void ktbC_DataColumn::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_DataColumn>(r); }
void ktbC_DataColumn::CowDtor(void* p) { fw_CowDtor<ktbC_DataColumn>(p); }

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
