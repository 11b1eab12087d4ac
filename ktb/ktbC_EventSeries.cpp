#include "ktb/ktbC_EventSeries.h"

#include "framework/fw_PersistentClassImpl.h"
#include "ktb/ktbC_Transformation.h"

ktbC_EventSeries::ktbC_EventSeries() = default;
ktbC_EventSeries::ktbC_EventSeries(const ktbC_EventSeries& o) = default;
ktbC_EventSeries& ktbC_EventSeries::operator=(const ktbC_EventSeries& o) = default;
ktbC_EventSeries::~ktbC_EventSeries() = default;
void ktbC_EventSeries::SetTransformations(const cow_List<TransformationHandle>& v) { transformations = v; }

ktbC_EventSeries::ktbC_EventSeries(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_EventSeries::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_EventSeries, mem_Allocated>;
