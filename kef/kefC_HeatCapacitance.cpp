#include "kef/kefC_HeatCapacitance.h"

#include "framework/fw_PersistentClassImpl.h"

kefC_HeatCapacitance::kefC_HeatCapacitance(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_HeatCapacitance::AssertValid() const {}

template class fw_PersistentClass<kefC_HeatCapacitance, kefC_Inertia>;
