#include "ktb/ktbC_ElemProgressiveActivation.h"

#include "framework/fw_FieldTable.h"

ktbC_ElemProgressiveActivation::ktbC_ElemProgressiveActivation(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_ElemProgressiveActivation::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_ElemProgressiveActivation* ktbC_ElemProgressiveActivation::Copy() const { return new ktbC_ElemProgressiveActivation(*this); }
bool ktbC_ElemProgressiveActivation::operator==(const ktbC_ElemProgressiveActivation& o) const { return fw_EqualFields(*this, o); }
void ktbC_ElemProgressiveActivation::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_ElemProgressiveActivation>(r); }
void ktbC_ElemProgressiveActivation::CowDtor(void* p) { fw_CowDtor<ktbC_ElemProgressiveActivation>(p); }

void ktbC_ElemProgressiveActivation::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
