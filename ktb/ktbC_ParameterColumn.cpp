#include "ktb/ktbC_ParameterColumn.h"

#include "framework/fw_FieldTable.h"

ktbC_ParameterColumn::ktbC_ParameterColumn(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_ParameterColumn::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_ParameterColumn* ktbC_ParameterColumn::Copy() const { return new ktbC_ParameterColumn(*this); }
bool ktbC_ParameterColumn::operator==(const ktbC_ParameterColumn& o) const { return fw_EqualFields(*this, o); }
void ktbC_ParameterColumn::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_ParameterColumn>(r); }
void ktbC_ParameterColumn::CowDtor(void* p) { fw_CowDtor<ktbC_ParameterColumn>(p); }

void ktbC_ParameterColumn::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
