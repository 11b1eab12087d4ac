#include "ktb/ktbC_Transformation.h"

#include "framework/fw_FieldTable.h"

ktbC_Transformation::ktbC_Transformation(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_Transformation::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_Transformation* ktbC_Transformation::Copy() const { return new ktbC_Transformation(*this); }
bool ktbC_Transformation::operator==(const ktbC_Transformation& o) const { return fw_EqualFields(*this, o); }
void ktbC_Transformation::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_Transformation>(r); }
void ktbC_Transformation::CowDtor(void* p) { fw_CowDtor<ktbC_Transformation>(p); }

void ktbC_Transformation::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
