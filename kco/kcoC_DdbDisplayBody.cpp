#include "kco/kcoC_DdbDisplayBody.h"

#include "framework/fw_PersistentClassImpl.h"

kcoC_DdbDisplayBody::kcoC_DdbDisplayBody(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kcoC_DdbDisplayBody::AssertValid() const {}

template class fw_PersistentClass<kcoC_DdbDisplayBody, kcoC_Constraint>;
