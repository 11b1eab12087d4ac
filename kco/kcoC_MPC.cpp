#include "kco/kcoC_MPC.h"

#include "framework/fw_FieldTable.h"

kcoC_MPC::kcoC_MPC(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_MPC::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_MPC* kcoC_MPC::Copy() const { return new kcoC_MPC(*this); }
bool kcoC_MPC::operator==(const kcoC_MPC& o) const { return fw_EqualFields(*this, o); }
bool kcoC_MPC::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_MPC&>(o); }
void kcoC_MPC::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_MPC>(r); }
void kcoC_MPC::CowDtor(void* p) { fw_CowDtor<kcoC_MPC>(p); }

void kcoC_MPC::AssertValid() const {}
