#include "kfl/kflC_ButterworthFilter.h"

#include "framework/fw_FieldTable.h"

kflC_ButterworthFilter::kflC_ButterworthFilter(const cls_ReadVisitor& reader) : kflC_Filter(reader) { fw_ReadFields(*this, reader); }
void kflC_ButterworthFilter::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kflC_ButterworthFilter* kflC_ButterworthFilter::Copy() const { return new kflC_ButterworthFilter(*this); }
bool kflC_ButterworthFilter::operator==(const kflC_ButterworthFilter& o) const { return fw_EqualFields(*this, o); }
bool kflC_ButterworthFilter::SameAs(const kflC_Filter& o) const { return *this == static_cast<const kflC_ButterworthFilter&>(o); }
void kflC_ButterworthFilter::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kflC_ButterworthFilter>(r); }
void kflC_ButterworthFilter::CowDtor(void* p) { fw_CowDtor<kflC_ButterworthFilter>(p); }

void kflC_ButterworthFilter::AssertValid() const {
  AssertFrequency(20, "The order of a Butterworth filter must be between 1 and 20.");
  AssertLimit();
}
