#include "kef/kefC_InputImperfection.h"

#include "framework/fw_FieldTable.h"

kefC_InputImperfection::kefC_InputImperfection(const cls_ReadVisitor& reader) : kefC_Imperfection(reader) { fw_ReadFields(*this, reader); }
void kefC_InputImperfection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_InputImperfection* kefC_InputImperfection::Copy() const { return new kefC_InputImperfection(*this); }
bool kefC_InputImperfection::operator==(const kefC_InputImperfection& o) const { return fw_EqualFields(*this, o); }
bool kefC_InputImperfection::SameAs(const kefC_Imperfection& o) const { return *this == static_cast<const kefC_InputImperfection&>(o); }
void kefC_InputImperfection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_InputImperfection>(r); }
void kefC_InputImperfection::CowDtor(void* p) { fw_CowDtor<kefC_InputImperfection>(p); }

void kefC_InputImperfection::AssertValid() const {}
