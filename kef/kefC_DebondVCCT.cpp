#include "kef/kefC_DebondVCCT.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_DebondVCCT::kefC_DebondVCCT(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_DebondVCCT::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(!surfToSurfInteraction.empty(), kefC_NoInteraction);
  kefC_Assert(!stepName.empty(), kefC_NoInitiationStep);
  kefC_Assert(printFreqVal >= 0, kefC_PrintFrequencyNegative);
}

template class fw_PersistentClass<kefC_DebondVCCT, kefC_Crack>;
