#include "kco/kcoC_RigidBody.h"

#include "framework/fw_FieldTable.h"

kcoC_RigidBody::kcoC_RigidBody(const cls_ReadVisitor& reader) : kcoC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kcoC_RigidBody::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kcoC_RigidBody* kcoC_RigidBody::Copy() const { return new kcoC_RigidBody(*this); }
bool kcoC_RigidBody::operator==(const kcoC_RigidBody& o) const { return fw_EqualFields(*this, o); }
bool kcoC_RigidBody::SameAs(const kcoC_Constraint& o) const { return *this == static_cast<const kcoC_RigidBody&>(o); }
void kcoC_RigidBody::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kcoC_RigidBody>(r); }
void kcoC_RigidBody::CowDtor(void* p) { fw_CowDtor<kcoC_RigidBody>(p); }

void kcoC_RigidBody::AssertValid() const {}
