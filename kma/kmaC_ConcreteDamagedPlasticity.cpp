#include "kma/kmaC_ConcreteDamagedPlasticity.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_ConcreteDamagedPlasticity::kmaC_ConcreteDamagedPlasticity(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

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

template class fw_PersistentClass<kmaC_ConcreteDamagedPlasticity, kmaC_MaterialOption>;
