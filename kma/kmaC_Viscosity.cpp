#include "kma/kmaC_Viscosity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Viscosity::kmaC_Viscosity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Viscosity* kmaC_Viscosity::Copy() const { return mem_New<kmaC_Viscosity>(*this); }
void kmaC_Viscosity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Viscosity::operator==(const kmaC_Viscosity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Viscosity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Viscosity&>(o); }
void kmaC_Viscosity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Viscosity>(r); }
void kmaC_Viscosity::CowDtor(void* p) { fw_CowDtor<kmaC_Viscosity>(p); }

void kmaC_Viscosity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
