#include "kfl/kflC_ButterworthFilter.h"

#include "framework/fw_PersistentClassImpl.h"

kflC_ButterworthFilter::kflC_ButterworthFilter(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kflC_ButterworthFilter::AssertValid() const {
  AssertFrequency(20, "The order of a Butterworth filter must be between 1 and 20.");
  AssertLimit();
}

template class fw_PersistentClass<kflC_ButterworthFilter, kflC_Filter>;
