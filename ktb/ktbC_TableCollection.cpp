#include "ktb/ktbC_TableCollection.h"

#include "framework/fw_FieldTable.h"

ktbC_TableCollection::ktbC_TableCollection(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void ktbC_TableCollection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
ktbC_TableCollection* ktbC_TableCollection::Copy() const { return new ktbC_TableCollection(*this); }
bool ktbC_TableCollection::operator==(const ktbC_TableCollection& o) const { return fw_EqualFields(*this, o); }
void ktbC_TableCollection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<ktbC_TableCollection>(r); }
void ktbC_TableCollection::CowDtor(void* p) { fw_CowDtor<ktbC_TableCollection>(p); }

void ktbC_TableCollection::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}
