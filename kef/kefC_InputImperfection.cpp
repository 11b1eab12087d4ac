#include "kef/kefC_InputImperfection.h"

#include "framework/fw_PersistentClassImpl.h"

kefC_InputImperfection::kefC_InputImperfection(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_InputImperfection::AssertValid() const {}

template class fw_PersistentClass<kefC_InputImperfection, kefC_Imperfection>;
