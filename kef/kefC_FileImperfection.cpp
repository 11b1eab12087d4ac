#include "kef/kefC_FileImperfection.h"

#include "framework/fw_PersistentClassImpl.h"

kefC_FileImperfection::kefC_FileImperfection(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_FileImperfection::AssertValid() const {}

template class fw_PersistentClass<kefC_FileImperfection, kefC_Imperfection>;
