#include "kma/kmaC_MagneticPermeability.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_MagneticPermeability::kmaC_MagneticPermeability(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_MagneticPermeability* kmaC_MagneticPermeability::Copy() const { return mem_New<kmaC_MagneticPermeability>(*this); }
void kmaC_MagneticPermeability::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_MagneticPermeability::operator==(const kmaC_MagneticPermeability& o) const { return fw_EqualFields(*this, o); }
bool kmaC_MagneticPermeability::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_MagneticPermeability&>(o); }
void kmaC_MagneticPermeability::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_MagneticPermeability>(r); }
void kmaC_MagneticPermeability::CowDtor(void* p) { fw_CowDtor<kmaC_MagneticPermeability>(p); }

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
