#include "kco/kcoC_Coupling.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kco/kcoC_assert.h"

kcoC_Coupling::kcoC_Coupling(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// A distributing coupling needs every displacement; its rotations are free.
void kcoC_Coupling::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  if (couplingType == kcoC_CouplingTypeEnm::DISTRIBUTING)
    kcoC_Assert(u1 && u2 && u3, kcoC_DistributingDisplacementsFree);
}

template class fw_PersistentClass<kcoC_Coupling, kcoC_Constraint>;
