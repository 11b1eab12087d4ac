#include "ktb/ktbC_ParameterTable.h"

#include "framework/fw_FieldTable.h"

ktbC_ParameterTable::ktbC_ParameterTable(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_ParameterTable::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_ParameterTable* ktbC_ParameterTable::Copy() const { return new ktbC_ParameterTable(*this); }
bool ktbC_ParameterTable::operator==(const ktbC_ParameterTable& o) const { return fw_EqualFields(*this, o); }
void ktbC_ParameterTable::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_ParameterTable>(r); }
void ktbC_ParameterTable::CowDtor(void* p) { fw_CowDtor<ktbC_ParameterTable>(p); }

void ktbC_ParameterTable::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
