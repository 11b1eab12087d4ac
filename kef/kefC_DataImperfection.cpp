#include "kef/kefC_DataImperfection.h"

#include "framework/fw_FieldTable.h"

kefC_DataImperfection::kefC_DataImperfection(const cls_ReadVisitor& reader) : kefC_Imperfection(reader) { fw_ReadFields(*this, reader); }
void kefC_DataImperfection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_DataImperfection* kefC_DataImperfection::Copy() const { return new kefC_DataImperfection(*this); }
bool kefC_DataImperfection::operator==(const kefC_DataImperfection& o) const { return fw_EqualFields(*this, o); }
bool kefC_DataImperfection::SameAs(const kefC_Imperfection& o) const { return *this == static_cast<const kefC_DataImperfection&>(o); }
void kefC_DataImperfection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_DataImperfection>(r); }
void kefC_DataImperfection::CowDtor(void* p) { fw_CowDtor<kefC_DataImperfection>(p); }

void kefC_DataImperfection::AssertValid() const {}
