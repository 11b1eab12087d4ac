#include "kma/kmaC_ConcreteDamagedPlasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_ConcreteDamagedPlasticity::kmaC_ConcreteDamagedPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ConcreteDamagedPlasticity* kmaC_ConcreteDamagedPlasticity::Copy() const { return mem_New<kmaC_ConcreteDamagedPlasticity>(*this); }
void kmaC_ConcreteDamagedPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ConcreteDamagedPlasticity::operator==(const kmaC_ConcreteDamagedPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ConcreteDamagedPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ConcreteDamagedPlasticity&>(o); }
void kmaC_ConcreteDamagedPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ConcreteDamagedPlasticity>(r); }
void kmaC_ConcreteDamagedPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_ConcreteDamagedPlasticity>(p); }

void kmaC_ConcreteDamagedPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
  // Columns: dilation angle, eccentricity, fb0/fc0, K, viscosity.
  for (std::size_t r = 0; r < table.Rows(); ++r) {
    if (table.Columns() > 1) kmaC_Assert(table(r, 1) >= 0.0, kmaC_EccentricityBelowMinimum);
    if (table.Columns() > 3) kmaC_Assert(table(r, 3) > 0.5, kmaC_KappaBelowMinimum);
    if (table.Columns() > 3) kmaC_Assert(table(r, 3) <= 1.0, kmaC_KappaAboveMaximum);
  }
}
