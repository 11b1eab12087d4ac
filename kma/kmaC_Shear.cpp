#include "kma/kmaC_Shear.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Shear::kmaC_Shear(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Shear* kmaC_Shear::Copy() const { return mem_New<kmaC_Shear>(*this); }
void kmaC_Shear::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Shear::operator==(const kmaC_Shear& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Shear::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Shear&>(o); }
void kmaC_Shear::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Shear>(r); }
void kmaC_Shear::CowDtor(void* p) { fw_CowDtor<kmaC_Shear>(p); }

void kmaC_Shear::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
