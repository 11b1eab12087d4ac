#include "kco/kcoC_RigidBody.h"

#include "framework/fw_PersistentClassImpl.h"

kcoC_RigidBody::kcoC_RigidBody(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kcoC_RigidBody::AssertValid() const {}

template class fw_PersistentClass<kcoC_RigidBody, kcoC_Constraint>;
