#include "kfl/kflC_OperatorFilter.h"

#include "framework/fw_PersistentClassImpl.h"

kflC_OperatorFilter::kflC_OperatorFilter(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kflC_OperatorFilter::AssertValid() const {
  kflC_Refuse(operation != OperationEnm::NONE, "An operator filter must specify an operation.");
  AssertLimit();
}

template class fw_PersistentClass<kflC_OperatorFilter, kflC_Filter>;
