#include "ktb/ktbC_PropertyTableData.h"

#include "framework/fw_FieldTable.h"

ktbC_PropertyTableData::ktbC_PropertyTableData(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_PropertyTableData::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_PropertyTableData* ktbC_PropertyTableData::Copy() const { return new ktbC_PropertyTableData(*this); }
bool ktbC_PropertyTableData::operator==(const ktbC_PropertyTableData& o) const { return fw_EqualFields(*this, o); }
void ktbC_PropertyTableData::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_PropertyTableData>(r); }
void ktbC_PropertyTableData::CowDtor(void* p) { fw_CowDtor<ktbC_PropertyTableData>(p); }

void ktbC_PropertyTableData::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
