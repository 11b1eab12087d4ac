#include "kma/kmaC_ElectricalConductivity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_ElectricalConductivity::kmaC_ElectricalConductivity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ElectricalConductivity* kmaC_ElectricalConductivity::Copy() const { return mem_New<kmaC_ElectricalConductivity>(*this); }
void kmaC_ElectricalConductivity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ElectricalConductivity::operator==(const kmaC_ElectricalConductivity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ElectricalConductivity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ElectricalConductivity&>(o); }
void kmaC_ElectricalConductivity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ElectricalConductivity>(r); }
void kmaC_ElectricalConductivity::CowDtor(void* p) { fw_CowDtor<kmaC_ElectricalConductivity>(p); }

void kmaC_ElectricalConductivity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
