#include "ktb/ktbC_EventSeries.h"

#include "framework/fw_FieldTable.h"
#include "ktb/ktbC_Transformation.h"

ktbC_EventSeries::ktbC_EventSeries() = default;
ktbC_EventSeries::ktbC_EventSeries(const ktbC_EventSeries& o) = default;
ktbC_EventSeries& ktbC_EventSeries::operator=(const ktbC_EventSeries& o) = default;
ktbC_EventSeries::~ktbC_EventSeries() = default;
void ktbC_EventSeries::SetTransformations(const cow_List<TransformationHandle>& v) { transformations = v; }

ktbC_EventSeries::ktbC_EventSeries(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_EventSeries::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_EventSeries* ktbC_EventSeries::Copy() const { return new ktbC_EventSeries(*this); }
bool ktbC_EventSeries::operator==(const ktbC_EventSeries& o) const { return fw_EqualFields(*this, o); }
void ktbC_EventSeries::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_EventSeries>(r); }
void ktbC_EventSeries::CowDtor(void* p) { fw_CowDtor<ktbC_EventSeries>(p); }

void ktbC_EventSeries::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
