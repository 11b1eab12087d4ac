#include "kef/kefC_SpringToGround.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_SpringToGround::kefC_SpringToGround(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_SpringToGround::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertSpringValid();
  kefC_Assert(!region.IsEmpty(), kefC_GroundRegionInvalid);
  kefC_Assert(dof1 > 0, kefC_GroundDofUnspecified);
}

template class fw_PersistentClass<kefC_SpringToGround, kefC_Spring>;
