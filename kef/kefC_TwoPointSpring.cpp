#include "kef/kefC_TwoPointSpring.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_TwoPointSpring::kefC_TwoPointSpring(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// Both ends name their degree of freedom whatever the axis: the rules list no exception for the
// nodal line.
void kefC_TwoPointSpring::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertSpringValid();
  kefC_Assert(regionPairs.size() >= 2, kefC_NoPointPair);
  kefC_Assert(dof1 > 0, kefC_Dof1Unspecified);
  kefC_Assert(dof2 > 0, kefC_Dof2Unspecified);
}

template class fw_PersistentClass<kefC_TwoPointSpring, kefC_Spring>;
