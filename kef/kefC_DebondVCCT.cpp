#include "kef/kefC_DebondVCCT.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_DebondVCCT::kefC_DebondVCCT(const cls_ReadVisitor& reader) : kefC_Crack(reader) { fw_ReadFields(*this, reader); }
void kefC_DebondVCCT::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_DebondVCCT* kefC_DebondVCCT::Copy() const { return new kefC_DebondVCCT(*this); }
bool kefC_DebondVCCT::operator==(const kefC_DebondVCCT& o) const { return fw_EqualFields(*this, o); }
bool kefC_DebondVCCT::SameAs(const kefC_Crack& o) const { return *this == static_cast<const kefC_DebondVCCT&>(o); }
void kefC_DebondVCCT::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_DebondVCCT>(r); }
void kefC_DebondVCCT::CowDtor(void* p) { fw_CowDtor<kefC_DebondVCCT>(p); }

void kefC_DebondVCCT::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(!surfToSurfInteraction.empty(), kefC_NoInteraction);
  kefC_Assert(!stepName.empty(), kefC_NoInitiationStep);
  kefC_Assert(printFreqVal >= 0, kefC_PrintFrequencyNegative);
}
