#include "kef/kefC_DataImperfection.h"

#include "framework/fw_PersistentClassImpl.h"

kefC_DataImperfection::kefC_DataImperfection(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_DataImperfection::AssertValid() const {}

template class fw_PersistentClass<kefC_DataImperfection, kefC_Imperfection>;
