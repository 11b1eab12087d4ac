#include "kco/kcoC_AdjustPoints.h"

#include "framework/fw_PersistentClassImpl.h"

kcoC_AdjustPoints::kcoC_AdjustPoints(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kcoC_AdjustPoints::AssertValid() const {}

template class fw_PersistentClass<kcoC_AdjustPoints, kcoC_Constraint>;
