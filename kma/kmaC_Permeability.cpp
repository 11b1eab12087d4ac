#include "kma/kmaC_Permeability.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Permeability::kmaC_Permeability(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Permeability* kmaC_Permeability::Copy() const { return mem_New<kmaC_Permeability>(*this); }
void kmaC_Permeability::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Permeability::operator==(const kmaC_Permeability& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Permeability::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Permeability&>(o); }
void kmaC_Permeability::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Permeability>(r); }
void kmaC_Permeability::CowDtor(void* p) { fw_CowDtor<kmaC_Permeability>(p); }

void kmaC_Permeability::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
