#include "kfl/kflC_OperatorFilter.h"

#include "framework/fw_FieldTable.h"

kflC_OperatorFilter::kflC_OperatorFilter(const cls_ReadVisitor& reader) : kflC_Filter(reader) { fw_ReadFields(*this, reader); }
void kflC_OperatorFilter::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kflC_OperatorFilter* kflC_OperatorFilter::Copy() const { return new kflC_OperatorFilter(*this); }
bool kflC_OperatorFilter::operator==(const kflC_OperatorFilter& o) const { return fw_EqualFields(*this, o); }
bool kflC_OperatorFilter::SameAs(const kflC_Filter& o) const { return *this == static_cast<const kflC_OperatorFilter&>(o); }
void kflC_OperatorFilter::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kflC_OperatorFilter>(r); }
void kflC_OperatorFilter::CowDtor(void* p) { fw_CowDtor<kflC_OperatorFilter>(p); }

void kflC_OperatorFilter::AssertValid() const {
  kflC_Refuse(operation != OperationEnm::NONE, "An operator filter must specify an operation.");
  AssertLimit();
}
