#include "ktb/ktbC_Transformation.h"

#include "framework/fw_PersistentClassImpl.h"

ktbC_Transformation::ktbC_Transformation(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void ktbC_Transformation::AssertValid() const {
  // The module has no error table: every combination of members is a table a user may mean.
}

template class fw_PersistentClass<ktbC_Transformation, mem_Allocated>;
