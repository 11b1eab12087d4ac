#include "ktb/ktbC_TableCollection.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_TableCollection::ktbC_TableCollection(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_TableCollection::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_TableCollection, mem_Allocated>;
