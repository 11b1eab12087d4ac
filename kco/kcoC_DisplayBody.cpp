#include "kco/kcoC_DisplayBody.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kco/kcoC_assert.h"

kcoC_DisplayBody::kcoC_DisplayBody(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kcoC_DisplayBody::AssertValid() const {
  if (suppress) return;  // a suppressed constraint is not validated
  kcoC_Assert(instanceId != 0, kcoC_DisplayBodyWithoutInstance);
}

template class fw_PersistentClass<kcoC_DisplayBody, kcoC_Constraint>;
