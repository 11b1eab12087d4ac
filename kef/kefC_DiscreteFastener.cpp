#include "kef/kefC_DiscreteFastener.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_DiscreteFastener::kefC_DiscreteFastener(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_DiscreteFastener::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  AssertFastenerValid();
}

template class fw_PersistentClass<kefC_DiscreteFastener, kefC_Fastener>;
