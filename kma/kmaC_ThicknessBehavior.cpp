#include "kma/kmaC_ThicknessBehavior.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_ThicknessBehavior::kmaC_ThicknessBehavior(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ThicknessBehavior* kmaC_ThicknessBehavior::Copy() const { return mem_New<kmaC_ThicknessBehavior>(*this); }
void kmaC_ThicknessBehavior::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ThicknessBehavior::operator==(const kmaC_ThicknessBehavior& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ThicknessBehavior::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ThicknessBehavior&>(o); }
void kmaC_ThicknessBehavior::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ThicknessBehavior>(r); }
void kmaC_ThicknessBehavior::CowDtor(void* p) { fw_CowDtor<kmaC_ThicknessBehavior>(p); }

void kmaC_ThicknessBehavior::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(contactArea == 0.0 || units == UnitsEnm::FORCE, kmaC_GasketAreaWithoutForceUnits);
  kmaC_Assert(tensileStiffnessFactor > 0.0, kmaC_TensileStiffnessNotPositive);
  table.AssertValid();
}
