#include "kma/kmaC_MagneticPermeability.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_MagneticPermeability::kmaC_MagneticPermeability(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_MagneticPermeability::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(!nonlinearBH || type != TypeEnm::ANISOTROPIC, kmaC_AnisotropicNonlinearBH);
  kmaC_Assert(!nonlinearBH || !frequencyDependency, kmaC_FrequencyNonlinearBH);
  if (!nonlinearBH) return table.AssertValid();
  // A B-H curve starts at the origin and needs a second point to have a slope; its first row is
  // therefore all zeros by rule, and only the rows after it must hold a value.
  kmaC_Assert(table.Rows() >= 2, kmaC_TwoDataRowsRequired);
  kmaC_Assert(table.Columns() >= 2 && table(0, 0) == 0.0 && table(0, 1) == 0.0, kmaC_FirstRowNotOrigin);
  kmaC_MaterialTable curve = table;
  curve.AllowEmptyFirstRow(true);
  curve.AssertValid();
}

template class fw_PersistentClass<kmaC_MagneticPermeability, kmaC_MaterialOption>;
