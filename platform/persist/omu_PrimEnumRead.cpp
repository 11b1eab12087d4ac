// Reading an enumeration from a stored record belongs to the persistence layer: the enumeration
// itself (platform/base) knows nothing of visitors.
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_Visitor.h"

cow_String omu_PrimEnumBase::ReadStored(const cls_ReadVisitor& r, const char* field) {
  return r.ReadString(field);
}
