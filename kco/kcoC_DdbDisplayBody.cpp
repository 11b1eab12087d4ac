#include "kco/kcoC_DdbDisplayBody.h"

#include "framework/fw_FieldTable.h"

kcoC_DdbDisplayBody::kcoC_DdbDisplayBody(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_DdbDisplayBody::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_DdbDisplayBody* kcoC_DdbDisplayBody::Copy() const { return new kcoC_DdbDisplayBody(*this); }
bool kcoC_DdbDisplayBody::operator==(const kcoC_DdbDisplayBody& o) const { return fw_EqualFields(*this, o); }
bool kcoC_DdbDisplayBody::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_DdbDisplayBody&>(o); }
void kcoC_DdbDisplayBody::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_DdbDisplayBody>(r); }
void kcoC_DdbDisplayBody::CowDtor(void* p) { fw_CowDtor<kcoC_DdbDisplayBody>(p); }

void kcoC_DdbDisplayBody::AssertValid() const {}
