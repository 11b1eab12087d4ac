#include "ktb/ktbC_ActivateElem.h"

#include "framework/fw_FieldTable.h"

ktbC_ActivateElem::ktbC_ActivateElem(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_ActivateElem::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_ActivateElem* ktbC_ActivateElem::Copy() const { return new ktbC_ActivateElem(*this); }
bool ktbC_ActivateElem::operator==(const ktbC_ActivateElem& o) const { return fw_EqualFields(*this, o); }
void ktbC_ActivateElem::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_ActivateElem>(r); }
void ktbC_ActivateElem::CowDtor(void* p) { fw_CowDtor<ktbC_ActivateElem>(p); }

void ktbC_ActivateElem::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
