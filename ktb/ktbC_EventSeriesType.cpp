#include "ktb/ktbC_EventSeriesType.h"

#include "framework/fw_FieldTable.h"

ktbC_EventSeriesType::ktbC_EventSeriesType(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_EventSeriesType::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_EventSeriesType* ktbC_EventSeriesType::Copy() const { return new ktbC_EventSeriesType(*this); }
bool ktbC_EventSeriesType::operator==(const ktbC_EventSeriesType& o) const { return fw_EqualFields(*this, o); }
void ktbC_EventSeriesType::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_EventSeriesType>(r); }
void ktbC_EventSeriesType::CowDtor(void* p) { fw_CowDtor<ktbC_EventSeriesType>(p); }

void ktbC_EventSeriesType::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
