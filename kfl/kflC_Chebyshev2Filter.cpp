#include "kfl/kflC_Chebyshev2Filter.h"

#include "framework/fw_PersistentClassImpl.h"

kflC_Chebyshev2Filter::kflC_Chebyshev2Filter(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kflC_Chebyshev2Filter::AssertValid() const {
  AssertFrequency(10, "The order of a Chebyshev filter must be between 1 and 10.");
  kflC_Refuse(rippleFactor > 0 && rippleFactor < 1, "The ripple factor must be greater than zero and less than one.");
  AssertLimit();
}

template class fw_PersistentClass<kflC_Chebyshev2Filter, kflC_Filter>;
