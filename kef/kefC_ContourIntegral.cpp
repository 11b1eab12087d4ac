#include "kef/kefC_ContourIntegral.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_ContourIntegral::kefC_ContourIntegral(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_ContourIntegral::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(midNodePosition >= 0.0 && midNodePosition <= 1.0, kefC_MidNodeOutOfRange);
}

template class fw_PersistentClass<kefC_ContourIntegral, kefC_Crack>;
