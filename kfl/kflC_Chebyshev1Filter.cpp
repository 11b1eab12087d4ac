#include "kfl/kflC_Chebyshev1Filter.h"

#include "framework/fw_FieldTable.h"

kflC_Chebyshev1Filter::kflC_Chebyshev1Filter(const cls_ReadVisitor& reader) : kflC_Filter(reader) { fw_ReadFields(*this, reader); }
void kflC_Chebyshev1Filter::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kflC_Chebyshev1Filter* kflC_Chebyshev1Filter::Copy() const { return new kflC_Chebyshev1Filter(*this); }
bool kflC_Chebyshev1Filter::operator==(const kflC_Chebyshev1Filter& o) const { return fw_EqualFields(*this, o); }
bool kflC_Chebyshev1Filter::SameAs(const kflC_Filter& o) const { return *this == static_cast<const kflC_Chebyshev1Filter&>(o); }
void kflC_Chebyshev1Filter::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kflC_Chebyshev1Filter>(r); }
void kflC_Chebyshev1Filter::CowDtor(void* p) { fw_CowDtor<kflC_Chebyshev1Filter>(p); }

void kflC_Chebyshev1Filter::AssertValid() const {
  AssertFrequency(10, "The order of a Chebyshev filter must be between 1 and 10.");
  kflC_Refuse(rippleFactor > 0 && rippleFactor < 1, "The ripple factor must be greater than zero and less than one.");
  AssertLimit();
}
