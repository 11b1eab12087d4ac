#include "kef/kefC_ContourIntegral.h"

#include "framework/fw_FieldTable.h"
#include "kef/kefC_assert.h"

kefC_ContourIntegral::kefC_ContourIntegral(const cls_ReadVisitor& reader) : kefC_Crack(reader) { fw_ReadFields(*this, reader); }
void kefC_ContourIntegral::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_ContourIntegral* kefC_ContourIntegral::Copy() const { return new kefC_ContourIntegral(*this); }
bool kefC_ContourIntegral::operator==(const kefC_ContourIntegral& o) const { return fw_EqualFields(*this, o); }
bool kefC_ContourIntegral::SameAs(const kefC_Crack& o) const { return *this == static_cast<const kefC_ContourIntegral&>(o); }
void kefC_ContourIntegral::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_ContourIntegral>(r); }
void kefC_ContourIntegral::CowDtor(void* p) { fw_CowDtor<kefC_ContourIntegral>(p); }

void kefC_ContourIntegral::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  kefC_Assert(midNodePosition >= 0.0 && midNodePosition <= 1.0, kefC_MidNodeOutOfRange);
}
