#include "kef/kefC_HeatCapacitance.h"

#include "framework/fw_FieldTable.h"

kefC_HeatCapacitance::kefC_HeatCapacitance(const cls_ReadVisitor& reader) : kefC_Inertia(reader) { fw_ReadFields(*this, reader); }
void kefC_HeatCapacitance::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kefC_HeatCapacitance* kefC_HeatCapacitance::Copy() const { return new kefC_HeatCapacitance(*this); }
bool kefC_HeatCapacitance::operator==(const kefC_HeatCapacitance& o) const { return fw_EqualFields(*this, o); }
bool kefC_HeatCapacitance::SameAs(const kefC_Inertia& o) const { return *this == static_cast<const kefC_HeatCapacitance&>(o); }
void kefC_HeatCapacitance::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kefC_HeatCapacitance>(r); }
void kefC_HeatCapacitance::CowDtor(void* p) { fw_CowDtor<kefC_HeatCapacitance>(p); }

void kefC_HeatCapacitance::AssertValid() const {}
