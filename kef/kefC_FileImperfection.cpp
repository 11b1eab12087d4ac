#include "kef/kefC_FileImperfection.h"

#include "framework/fw_FieldTable.h"

kefC_FileImperfection::kefC_FileImperfection(const cls_ReadVisitor& reader) : kefC_Imperfection(reader) { fw_ReadFields(*this, reader); }
void kefC_FileImperfection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_FileImperfection* kefC_FileImperfection::Copy() const { return new kefC_FileImperfection(*this); }
bool kefC_FileImperfection::operator==(const kefC_FileImperfection& o) const { return fw_EqualFields(*this, o); }
bool kefC_FileImperfection::SameAs(const kefC_Imperfection& o) const { return *this == static_cast<const kefC_FileImperfection&>(o); }
void kefC_FileImperfection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_FileImperfection>(r); }
void kefC_FileImperfection::CowDtor(void* p) { fw_CowDtor<kefC_FileImperfection>(p); }

void kefC_FileImperfection::AssertValid() const {}
