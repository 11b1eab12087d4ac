#include "ktb/ktbC_PropertyTable.h"

#include "framework/fw_FieldTable.h"

ktbC_PropertyTable::ktbC_PropertyTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_PropertyTable::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_PropertyTable* ktbC_PropertyTable::Copy() const { return new ktbC_PropertyTable(*this); }
bool ktbC_PropertyTable::operator==(const ktbC_PropertyTable& o) const { return fw_EqualFields(*this, o); }
void ktbC_PropertyTable::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_PropertyTable>(r); }
void ktbC_PropertyTable::CowDtor(void* p) { fw_CowDtor<ktbC_PropertyTable>(p); }

void ktbC_PropertyTable::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
