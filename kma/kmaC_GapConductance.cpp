#include "kma/kmaC_GapConductance.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_GapConductance::kmaC_GapConductance(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_GapConductance* kmaC_GapConductance::Copy() const { return mem_New<kmaC_GapConductance>(*this); }
void kmaC_GapConductance::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_GapConductance::operator==(const kmaC_GapConductance& o) const { return fw_EqualFields(*this, o); }
bool kmaC_GapConductance::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_GapConductance&>(o); }
void kmaC_GapConductance::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_GapConductance>(r); }
void kmaC_GapConductance::CowDtor(void* p) { fw_CowDtor<kmaC_GapConductance>(p); }

void kmaC_GapConductance::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
