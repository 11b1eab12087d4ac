#include "ktb/ktbC_EventSeriesType.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_EventSeriesType::ktbC_EventSeriesType(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_EventSeriesType::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_EventSeriesType, mem_Allocated>;
