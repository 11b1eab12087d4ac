#include "kma/kmaC_Viscous.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Viscous::kmaC_Viscous(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Viscous* kmaC_Viscous::Copy() const { return mem_New<kmaC_Viscous>(*this); }
void kmaC_Viscous::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Viscous::operator==(const kmaC_Viscous& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Viscous::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Viscous&>(o); }
void kmaC_Viscous::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Viscous>(r); }
void kmaC_Viscous::CowDtor(void* p) { fw_CowDtor<kmaC_Viscous>(p); }

void kmaC_Viscous::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
