#include "kco/kcoC_MPC.h"

#include "framework/fw_PersistentClassImpl.h"

kcoC_MPC::kcoC_MPC(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kcoC_MPC::AssertValid() const {}

template class fw_PersistentClass<kcoC_MPC, kcoC_Constraint>;
