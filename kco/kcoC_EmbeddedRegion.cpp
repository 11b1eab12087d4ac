#include "kco/kcoC_EmbeddedRegion.h"

#include "framework/fw_PersistentClassImpl.h"

kcoC_EmbeddedRegion::kcoC_EmbeddedRegion(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kcoC_EmbeddedRegion::AssertValid() const {}

template class fw_PersistentClass<kcoC_EmbeddedRegion, kcoC_Constraint>;
